#include "x11/back_end_fixture.h"

#include <GL/glx.h>
#include <dlfcn.h>

#include <stdexcept>

namespace {

GLXContext hostContext = nullptr;
GLXPbuffer surface = 0;

// Stays open: the driver is unloaded with the last connection, and its leaks could then not be recognised by its name.
Display *connection() {
    static Display *const display = XOpenDisplay(nullptr);
    return display;
}

} // namespace

extern "C" ZV_EXPORT const zvThread *zvCurrentThread(void) {
    return &BackEnd::thread;
}

BackEnd::BackEnd() : m_library(dlopen(ZELVANE_BACK_END, RTLD_LAZY | RTLD_GLOBAL)) {
    Display *const display = connection();
    if (!display || !m_library) throw std::runtime_error("no X display, or no back end");

    // A host may treat any surface as sRGB; the back end must handle that.
    constexpr int srgbCapable = 0x20B2;
    const int format[] = {
        GLX_DRAWABLE_TYPE, GLX_PBUFFER_BIT, GLX_RED_SIZE, 8, GLX_DEPTH_SIZE, 24, srgbCapable, True, None};
    int count = 0;
    GLXFBConfig *const configs = glXChooseFBConfig(display, DefaultScreen(display), format, &count);
    if (!configs || count == 0) throw std::runtime_error("no GLX config");
    const int extent[] = {GLX_PBUFFER_WIDTH, size, GLX_PBUFFER_HEIGHT, size, None};
    surface = glXCreatePbuffer(display, configs[0], extent);
    const auto create = reinterpret_cast<PFNGLXCREATECONTEXTATTRIBSARBPROC>(
        glXGetProcAddressARB(reinterpret_cast<const GLubyte *>("glXCreateContextAttribsARB")));
    // A version from 3.2 on is a core context.
    const int version[] = {GLX_CONTEXT_MAJOR_VERSION_ARB, 3, GLX_CONTEXT_MINOR_VERSION_ARB, 2, None};
    hostContext = create(display, configs[0], nullptr, True, version);
    XFree(configs);
    if (!glXMakeContextCurrent(display, surface, surface, hostContext)) {
        throw std::runtime_error("the host context cannot be bound");
    }
}

BackEnd::~BackEnd() {
    Display *const display = connection();
    glXMakeContextCurrent(display, None, None, nullptr);
    glXDestroyContext(display, hostContext);
    if (current) OWN(zvDeleteEsContext)(std::exchange(current, nullptr));
    glXDestroyPbuffer(display, surface);
}

void *BackEnd::symbol(const char *name) const {
    return dlsym(m_library, name);
}
