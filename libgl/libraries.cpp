#include "libgl/libraries.h"

#include <atomic>
#include <cstdint>
#include <cstring>
#include <dlfcn.h>

#include "foundation/libgl_link.h"

extern "C" FollowLibEgl zvFollowLibEgl;

namespace libgl {

namespace {

using GetProcAddress = Function (*)(const unsigned char *name);

// Opened by paths, since the names would find this library. Opened once, or once by each of several first threads.
void *hostLibrary() {
    static constinit std::atomic<void *> opened = nullptr;
    if (void *const library = opened.load(std::memory_order_acquire)) return library;
    void *const library = dlopen("libGLX.so.0", RTLD_LAZY | RTLD_LOCAL);
    opened.store(library, std::memory_order_release);
    return library;
}

constinit std::atomic<LibGlLink::FindEntry> findEntry = nullptr; // written before the first function follows

ptrdiff_t offsetInThread(const void *word) {
    uintptr_t thread = 0;
    asm("movq %%fs:0, %0" : "=r"(thread));
    return static_cast<ptrdiff_t>(reinterpret_cast<uintptr_t>(word) - thread);
}

// The word for processes without libEGL.
constinit thread_local const void *const noContext __attribute__((tls_model("initial-exec"))) = nullptr;

// Passes on the link of a libEGL that was loaded before; a later one calls zvFollowLibEgl itself.
[[gnu::constructor]] void followLoadedLibEgl() {
    follow(offsetInThread(&noContext));
    void *const library = dlopen("libEGL.so.1", RTLD_LAZY | RTLD_NOLOAD);
    if (!library) return;
    if (auto *const describe = reinterpret_cast<DescribeToLibGl *>(dlsym(library, "zvDescribeToLibGl"))) {
        LibGlLink link{};
        describe(&link);
        zvFollowLibEgl(&link);
    }
    dlclose(library);
}

} // namespace

Function findHostFunction(const char *name) {
    void *const library = hostLibrary();
    if (!library) return nullptr;
    // It exports old versions of GLX, and no OpenGL.
    void *const exported = strncmp(name, "glX", 3) == 0 ? dlsym(library, name) : nullptr;
    if (exported) return reinterpret_cast<Function>(exported);
    const auto getProcAddress = reinterpret_cast<GetProcAddress>(dlsym(library, "glXGetProcAddressARB"));
    return getProcAddress ? getProcAddress(reinterpret_cast<const unsigned char *>(name)) : nullptr;
}

Function findEglFunction(const char *name) {
    const auto find = findEntry.load();
    return find ? find(name) : nullptr;
}

} // namespace libgl

extern "C" [[gnu::visibility("default")]] void zvFollowLibEgl(const LibGlLink *link) {
    libgl::findEntry = link->findEntry;
    libgl::follow(libgl::offsetInThread(link->context));
}
