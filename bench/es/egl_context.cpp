// An ES context of the libEGL.so.1 that the loader finds, so that LD_LIBRARY_PATH chooses between libraries.
#include "context.h"

#include <EGL/egl.h>
#include <dlfcn.h>

namespace {

using GetProcAddress = void *(*)(const char *name);
GetProcAddress getProcAddress = nullptr;

template <typename Function>
Function symbol(void *library, const char *name) {
    void *const found = library ? dlsym(library, name) : nullptr;
    if (!found) fail(name);
    return reinterpret_cast<Function>(found);
}

// Mesa has entries for all functions and no others.
GetProcAddress backEndGetProcAddress() {
    return symbol<GetProcAddress>(dlopen("libGLESv2.so.2", RTLD_NOW), "zvGetExtProcAddress");
}

} // namespace

void openEglContext(bool isPastProxy, int major) {
    void *const library = dlopen("libEGL.so.1", RTLD_NOW);
#define EGL(name) symbol<decltype(&name)>(library, #name)
    const EGLDisplay display = EGL(eglGetDisplay)(EGL_DEFAULT_DISPLAY);
    if (!EGL(eglInitialize)(display, nullptr, nullptr)) fail("eglInitialize");
    EGL(eglBindAPI)(EGL_OPENGL_ES_API);
    const EGLint wanted[] = {EGL_RENDERABLE_TYPE,
                             EGL_OPENGL_ES2_BIT,
                             EGL_SURFACE_TYPE,
                             EGL_PBUFFER_BIT,
                             EGL_RED_SIZE,
                             8,
                             EGL_GREEN_SIZE,
                             8,
                             EGL_BLUE_SIZE,
                             8,
                             EGL_ALPHA_SIZE,
                             8,
                             EGL_DEPTH_SIZE,
                             16,
                             EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (!EGL(eglChooseConfig)(display, wanted, &config, 1, &count) || count == 0) fail("eglChooseConfig");
    const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, major, EGL_NONE};
    const EGLint size[] = {EGL_WIDTH, 64, EGL_HEIGHT, 64, EGL_NONE};
    const EGLContext context = EGL(eglCreateContext)(display, config, EGL_NO_CONTEXT, version);
    const EGLSurface surface = EGL(eglCreatePbufferSurface)(display, config, size);
    if (!EGL(eglMakeCurrent)(display, surface, surface, context)) fail("eglMakeCurrent");
    getProcAddress = isPastProxy ? backEndGetProcAddress() : symbol<GetProcAddress>(library, "eglGetProcAddress");
#undef EGL
}

void *eglFunction(const char *name) {
    return getProcAddress(name);
}
