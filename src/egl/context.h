// An EGL context: the back-end context that does the ES work and the host context that carries it.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>

#include "egl/egl_api.h"
#include "foundation/dynamic_library.h"
#include "gl/function_table.h"
#include "host/host_context.h"
#include "profiles/config.h"
#include "zelvane/back_end.h"

namespace egl {

class Display;
class Surface;

struct SurfacePair {
    std::shared_ptr<Surface> draw;
    std::shared_ptr<Surface> read;
};

// Held by shared pointer; the address is stable for its life and is what its table of functions goes by.
class Context : public std::enable_shared_from_this<Context> {
public:
    // Opens the back-end library and makes the host context. Neither failure shows here: the first bind tells.
    Context(Display &display, uint64_t handle, std::shared_ptr<const Config> config, std::shared_ptr<Context> share,
            const ContextAttribs &attribs);
    Context(const Context &) = delete;
    Context &operator=(const Context &) = delete;
    // Leaves the host context behind unless deleteEsContext has ended it: a context that goes with eglTerminate may
    // still carry objects that others share.
    ~Context();

    // The back end's function of this name, or null. Asks the back end at every call.
    [[nodiscard]] void *getExtProcAddress(const char *name);
    // Ends the host context and the back-end context; later, if another thread has the context current. False when the
    // back end cannot delete; the host context is gone all the same.
    [[nodiscard]] bool deleteEsContext();
    // Hands a render mode to the back end. False when it takes none.
    bool setRenderMode(uint8_t mode);

    // Null once deleteEsContext has run.
    [[nodiscard]] std::shared_ptr<host::HostContextHandle> hostContext() const;

    // The surfaces of the last bind. They outlive an unbind.
    [[nodiscard]] SurfacePair surfaces() const;
    void setSurfaces(SurfacePair surfaces);

    // While a bind without the application's surfaces is under way, and after one that failed.
    [[nodiscard]] bool isSurfaceless() const;
    void setSurfaceless(bool surfaceless);

    // Constant after construction.
    Display &display;
    const uint64_t handle;
    const std::shared_ptr<const Config> config;
    const std::shared_ptr<Context> shareContext; // lives until every context that shares with it is gone
    gl::FunctionTable &functions;

    DynamicLibrary esLibrary;                     // open for the life of the context; on one thread at a time
    std::atomic<zvEsContext> esContext = nullptr; // null until the first bind and once the back end has deleted it
    ContextAttribs attribs;

    std::atomic<bool> boundToThread = false;
    std::atomic<bool> pendingDestroy = false; // destroyed while bound: goes when it is unbound
    // Taken for another display's context of the same number and destroyed while bound elsewhere.
    std::atomic<bool> deletesWhenUnbound = false;

private:
    using GetExtProcAddress = void *(*)(const char *name);

    std::atomic<GetExtProcAddress> m_getExtProcAddress = nullptr;
    mutable std::mutex m_mutex; // guards what is below: other threads may bind or destroy this context meanwhile
    std::shared_ptr<host::HostContextHandle> m_hostContext;
    SurfacePair m_surfaces;
};

} // namespace egl
