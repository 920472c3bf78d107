// What the recording platform has recorded and the results that it is set to return. One per process, under one mutex.
#pragma once

#include <cstdint>
#include <map>
#include <mutex>
#include <set>
#include <string>

#include "host/platform/operations.h"

namespace host::platform::recording {

struct WindowScript {
    int32_t width = 0;
    int32_t height = 0;
    std::string title;
};

struct Script {
    std::mutex mutex;
    std::string log;
    std::multiset<std::string> failures;
    std::map<uint64_t, WindowScript> windows;
    std::map<uint32_t, int32_t> formatValues;
    uint32_t formatCount = 0;
    uint32_t contextCount = 0;
    uint32_t bufferCount = 0;
};

[[nodiscard]] Script &script();

// True once for each recordingFailNext with the name. Call with the mutex held.
[[nodiscard]] bool takeFailure(const char *operation);

// The calling thread's binding: at most one of the two is set.
struct ThreadBinding {
    ContextContainer *container = nullptr;
    uint32_t foreign = 0;
};

[[nodiscard]] ThreadBinding &threadBinding();

// Takes a reference for the new binding and drops that of the old one. Call without the mutex.
void bindThread(const ThreadBinding &binding);

} // namespace host::platform::recording
