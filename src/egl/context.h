// An EGL context: the back-end context that implements OpenGL ES, and the host context that it uses.
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

// State shared by the contexts of a share group.
struct ContextGroup {
    // Held during each context's first bind, which creates the back-end contexts of those that it shares with.
    // Recursive, since a back end may call entries while it creates a context.
    std::recursive_mutex firstBinds;

    // For threads that have no context of the group current and query a host object of the group. Created on demand.
    std::mutex helperMutex; // held while the context is current
    std::unique_ptr<host::HostContextHandle> helper;
};

// Held by shared pointer; the address is stable for the context's life and identifies its function table.
//
// One thread at a time has a claim on a context, from before a bind to the unbind, or for deleting it. Only the thread
// that has the claim may access what is bound to it.
class Context : public std::enable_shared_from_this<Context> {
public:
    // Opens the back-end library and creates the host context. A failure of either is reported by the first bind.
    // api: EGL_OPENGL_ES_API or EGL_OPENGL_API.
    Context(Display &display, uint64_t handle, std::shared_ptr<const Config> config, std::shared_ptr<Context> share,
            const ContextAttribs &attribs, EGLenum api);
    Context(const Context &) = delete;
    Context &operator=(const Context &) = delete;
    // Leaks the host context unless deleteEsContext has destroyed it: a context that eglTerminate releases may still
    // own objects that others share.
    ~Context();

    // A context of desktop OpenGL; all others are of OpenGL ES.
    [[nodiscard]] bool isDesktop() const { return api == EGL_OPENGL_API; }
    // The back end's function of this name, or null. Queries the back end at every call.
    [[nodiscard]] void *getExtProcAddress(const char *name) const;
    // Destroys the host context and the back-end context; deferred if another thread has the context current. False
    // when the back end cannot delete; the host context is destroyed all the same. Any thread.
    [[nodiscard]] bool deleteEsContext();
    // The same, but always deferred until the thread that has it current, which may be the calling one, releases it.
    void deleteOnceLetGo();
    // Passes a render mode to the back end. False when it accepts none.
    bool setRenderMode(uint8_t mode) const;

    // False when any thread, the calling one included, has claimed it already.
    [[nodiscard]] bool claim() { return !boundToThread.exchange(true); }
    // Releases the claim, and runs a deletion that another thread requested meanwhile.
    void letGo();

    // False if the host has created none.
    [[nodiscard]] bool hasHostContext() const { return m_hostContext && m_hostContext->context->container(); }
    // Null once deleteEsContext has run. Any thread.
    [[nodiscard]] std::shared_ptr<host::HostContextHandle> hostContext() const;
    // The same, for the thread that has the claim only.
    [[nodiscard]] const host::HostContextHandle *claimedHostContext() const { return m_hostContext.get(); }

    // Constant after construction.
    Display &display;
    const uint64_t handle;
    const EGLenum api;
    const std::shared_ptr<const Config> config;
    const std::shared_ptr<Context> shareContext; // lives until every context that shares with it is destroyed
    const std::shared_ptr<ContextGroup> group;
    gl::FunctionTable &functions;
    const EsLibrary esLibrary; // open for the life of the context

    std::atomic<zvEsContext> esContext = nullptr; // null until the first bind and once the back end has deleted it

    std::atomic<bool> boundToThread = false;
    std::atomic<bool> pendingDestroy = false; // destroyed while bound: deleted when it is unbound

    // Used by the thread that has the claim. Surfaceless is set during a bind without the application's surfaces, and
    // stays set after a failed one.
    ContextAttribs attribs;
    SurfacePair surfaces;                           // of the last bind; they outlive an unbind
    std::shared_ptr<glove::ISurface> privateBuffer; // the drawable of binds without surfaces; created by the first

private:
    friend class SharedEsContext;

    // The caller has the claim.
    bool deleteClaimed();
    void deleteUnlessShared();

    mutable std::atomic<bool> m_keepsLibrary = false;

    // Set when eglDestroyContext for another display's context of the same number destroys this one while a thread has
    // it current.
    std::atomic<bool> m_deletesWhenLetGo = false;

    mutable std::mutex m_mutex; // guards the fields below
    std::shared_ptr<host::HostContextHandle> m_hostContext;
    int m_sharers = 0; // back-end contexts that are being created with this one as share context
    bool m_deletesWithoutSharers = false;
};

// Keeps a share context's back-end context alive while the back end needs it. If another thread deletes the context
// meanwhile, this destructor completes the deletion.
class SharedEsContext {
public:
    // share: null for no context.
    explicit SharedEsContext(Context *share);
    SharedEsContext(const SharedEsContext &) = delete;
    SharedEsContext &operator=(const SharedEsContext &) = delete;
    ~SharedEsContext();

    // Null when there is none, and when it has been deleted.
    [[nodiscard]] zvEsContext get() const { return m_esContext; }

private:
    Context *m_share;
    zvEsContext m_esContext = nullptr;
};

} // namespace egl
