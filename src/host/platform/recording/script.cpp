#include "host/platform/recording/script.h"

#include <cstring>

#include "host/platform/recording/control.h"

namespace host::platform::recording {

Script &script() {
    static auto *instance = new Script; // never destroyed: threads call it while the process ends
    return *instance;
}

bool takeFailure(const char *operation) {
    auto &failures = script().failures;
    const auto found = failures.find(operation);
    if (found == failures.end()) return false;
    failures.erase(found);
    return true;
}

ThreadBinding &threadBinding() {
    static thread_local ThreadBinding binding;
    return binding;
}

} // namespace host::platform::recording

using namespace host::platform::recording;

size_t recordingTakeLog(char *buffer, size_t capacity) {
    auto &state = script();
    const std::lock_guard lock(state.mutex);
    const size_t length = state.log.size();
    if (length >= capacity) return length;
    std::memcpy(buffer, state.log.c_str(), length + 1);
    state.log.clear();
    return length;
}

void recordingNote(const char *line) {
    auto &state = script();
    const std::lock_guard lock(state.mutex);
    state.log.append(line).append("\n");
}

void recordingReset(void) {
    bindThread({});
    auto &state = script();
    const std::lock_guard lock(state.mutex);
    state.log.clear();
    state.failures.clear();
    state.windows.clear();
    state.formatValues.clear();
    state.formatCount = state.contextCount = state.bufferCount = 0;
}

void recordingFailNext(const char *operation) {
    const std::lock_guard lock(script().mutex);
    script().failures.insert(operation);
}

void recordingSetWindow(uint64_t window, int32_t width, int32_t height, const char *title) {
    const std::lock_guard lock(script().mutex);
    script().windows[window] = {width, height, title};
}

void recordingSetFormatValue(uint32_t attribute, int32_t value) {
    const std::lock_guard lock(script().mutex);
    script().formatValues[attribute] = value;
}

void recordingMakeForeignCurrent(uint32_t name) {
    bindThread({.container = nullptr, .foreign = name});
}
