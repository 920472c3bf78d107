// An EGL context: the back-end context that does the ES work and the host context that carries it.
#pragma once

#include <atomic>
#include <memory>
#include <mutex>

#include "egl/egl_api.h"
#include "egl/es_library.h"
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

// What contexts that share objects have in common.
struct ContextGroup {
    // Held for the first bind of each: it makes the back-end contexts of those that it shares with. Recursive, since a
    // back end may call entries while it makes a context.
    std::recursive_mutex firstBinds;

    // For threads that have none of the group current and ask the host for an object of the group. Made when needed.
    std::mutex helperMutex; // held while the context is current
    std::unique_ptr<host::HostContextHandle> helper;
};

// Held by shared pointer; the address is stable for its life and is what its table of functions goes by.
//
// One thread at a time has a claim on a context, from before a bind to the unbind, or for deleting it. What is bound to
// it is touched by the thread that has the claim alone.
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
    [[nodiscard]] void *getExtProcAddress(const char *name) const;
    // Ends the host context and the back-end context; later, if another thread has the context current. False when the
    // back end cannot delete; the host context is gone all the same. Any thread.
    [[nodiscard]] bool deleteEsContext();
    // The same, but not before a thread that has it current lets it go, this one too.
    void deleteOnceLetGo();
    // Hands a render mode to the back end. False when it takes none.
    bool setRenderMode(uint8_t mode) const;

    // False when a thread has it already, this one too.
    [[nodiscard]] bool claim() { return !boundToThread.exchange(true); }
    // Gives the claim up, and deletes what another thread meant to delete meanwhile.
    void letGo();

    // Null once deleteEsContext has run. Any thread.
    [[nodiscard]] std::shared_ptr<host::HostContextHandle> hostContext() const;
    // The same for the thread that has the claim.
    [[nodiscard]] const host::HostContextHandle *claimedHostContext() const { return m_hostContext.get(); }

    // Constant after construction.
    Display &display;
    const uint64_t handle;
    const std::shared_ptr<const Config> config;
    const std::shared_ptr<Context> shareContext; // lives until every context that shares with it is gone
    const std::shared_ptr<ContextGroup> group;
    gl::FunctionTable &functions;
    const EsLibrary esLibrary; // open for the life of the context

    std::atomic<zvEsContext> esContext = nullptr; // null until the first bind and once the back end has deleted it

    std::atomic<bool> boundToThread = false;
    std::atomic<bool> pendingDestroy = false; // destroyed while bound: goes when it is unbound

    // Of the thread that has the claim. Surfaceless is set during a bind without the application's surfaces, and stays
    // after a failed one.
    ContextAttribs attribs;
    SurfacePair surfaces;                           // of the last bind; they outlive an unbind
    std::shared_ptr<glove::ISurface> privateBuffer; // what binds without surfaces draw to; made for the first of them

private:
    friend class SharedEsContext;

    // The caller has the claim.
    bool deleteClaimed();
    void deleteUnlessShared();

    mutable std::atomic<bool> m_keepsLibrary = false;

    // Another display's context of the same number, destroyed in its stead while a thread has it.
    std::atomic<bool> m_deletesWhenLetGo = false;

    mutable std::mutex m_mutex; // guards what is below
    std::shared_ptr<host::HostContextHandle> m_hostContext;
    int m_sharers = 0; // back-end contexts that are being made with this one
    bool m_deletesWithoutSharers = false;
};

// The back-end context of a context that another shares with, for as long as the back end needs it: one that is deleted
// meanwhile on another thread goes with this.
class SharedEsContext {
public:
    // Null stands for no context.
    explicit SharedEsContext(Context *share);
    SharedEsContext(const SharedEsContext &) = delete;
    SharedEsContext &operator=(const SharedEsContext &) = delete;
    ~SharedEsContext();

    // Null when there is none, and when it is deleted already.
    [[nodiscard]] zvEsContext get() const { return m_esContext; }

private:
    Context *m_share;
    zvEsContext m_esContext = nullptr;
};

} // namespace egl
