// The last binds of one thread, so that binding the same objects again needs no handle lookup.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include "egl/egl_api.h"

namespace egl {

class Context;
class Display;
class Surface;

struct BindRequest {
    const Display *display;
    EGLSurface draw, read;
    EGLContext context;
    bool operator==(const BindRequest &) const = default;
};

// The objects that a request resolved to.
struct BindMemo {
    BindRequest request{};
    uint64_t version = 0; // of the display's handles, read before they were looked up
    std::weak_ptr<Context> context;
    const Surface *draw = nullptr; // only compared: the context keeps its last surfaces alive
    const Surface *read = nullptr;
};

class BindMemos {
public:
    // Null for an unknown request, and when a handle of the display may have become invalid since.
    [[nodiscard]] const BindMemo *find(const BindRequest &request) const;
    void note(BindMemo memo);

private:
    // Indexed by the context's number, so that programs that alternate between a few contexts find them all.
    static constexpr size_t count = 4;
    static size_t placeOf(EGLContext context) { return reinterpret_cast<uintptr_t>(context) % count; }

    std::array<BindMemo, count> m_memos;
};

} // namespace egl
