// The host's context: of the version and profile that libEGL.so.1 requests from GLX.
#include "context.h"

#include <GL/glx.h>

namespace {

template <typename Function>
Function named(const char *name) {
    return reinterpret_cast<Function>(glXGetProcAddressARB(reinterpret_cast<const GLubyte *>(name)));
}

} // namespace

void openGlxContext() {
    Display *const server = XOpenDisplay(nullptr);
    if (!server) fail("no X display");
    const int wanted[] = {GLX_RED_SIZE,
                          8,
                          GLX_GREEN_SIZE,
                          8,
                          GLX_BLUE_SIZE,
                          8,
                          GLX_ALPHA_SIZE,
                          8,
                          GLX_DEPTH_SIZE,
                          16,
                          GLX_DRAWABLE_TYPE,
                          GLX_PBUFFER_BIT | GLX_WINDOW_BIT,
                          GLX_DOUBLEBUFFER,
                          True,
                          GLX_X_RENDERABLE,
                          True,
                          None};
    int count = 0;
    GLXFBConfig *const configs = glXChooseFBConfig(server, DefaultScreen(server), wanted, &count);
    if (!configs || count == 0) fail("glXChooseFBConfig");
    const int core[] = {
        GLX_CONTEXT_MAJOR_VERSION_ARB,    3,   GLX_CONTEXT_MINOR_VERSION_ARB, 2, GLX_CONTEXT_PROFILE_MASK_ARB,
        GLX_CONTEXT_CORE_PROFILE_BIT_ARB, None};
    const int size[] = {GLX_PBUFFER_WIDTH, 64, GLX_PBUFFER_HEIGHT, 64, None};
    const auto create = named<PFNGLXCREATECONTEXTATTRIBSARBPROC>("glXCreateContextAttribsARB");
    const GLXContext context = create ? create(server, configs[0], nullptr, True, core) : nullptr;
    const GLXPbuffer surface = glXCreatePbuffer(server, configs[0], size);
    if (!context || !glXMakeContextCurrent(server, surface, surface, context)) fail("glXMakeContextCurrent");
}

void *glxFunction(const char *name) {
    return named<void *>(name);
}
