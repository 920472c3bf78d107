#include "x11/gles1_fixture.h"

#include <dlfcn.h>

#include <stdexcept>

// The headers of GLX include those of desktop OpenGL, which conflict with those of ES.
#define __gl_h_
#define __gl_glext_h_
#include <GL/glx.h>

namespace {

zvThread thread = {};
std::string profileText;

// Stays open: the driver is unloaded with the last connection, and its leaks could then not be recognised by its name.
Display *connection() {
    static Display *const display = XOpenDisplay(nullptr);
    return display;
}

} // namespace

extern "C" ZV_EXPORT const zvThread *zvCurrentThread(void) {
    return &thread;
}

extern "C" ZV_EXPORT const char *zvSettingsProfileText(const void *) {
    return profileText.c_str();
}

extern "C" ZV_EXPORT int zvGuiIsAttached(void) {
    return 0;
}

extern "C" ZV_EXPORT void zvPostFrameMessage(zvMessage) {}

struct Gles1::Host {
    GLXContext context;
    GLXPbuffer pbuffer;
    zvEsContext esContext;
};

std::vector<Gles1::Host> Gles1::hosts;

Gles1::Gles1() : m_library(dlopen(ZELVANE_BACK_END, RTLD_LAZY | RTLD_GLOBAL)) {
    if (!connection()) throw std::runtime_error("no X display");
    if (!m_library) throw std::runtime_error(dlerror());
    getExtProcAddress = reinterpret_cast<decltype(getExtProcAddress)>(symbol("zvGetExtProcAddress"));
    setRenderMode = reinterpret_cast<decltype(setRenderMode)>(symbol("zvSetRenderMode"));
}

Gles1::~Gles1() {
    EXPECT_EQ(current() ? error() : GL_NO_ERROR, GL_NO_ERROR) << "at the end";
    const auto deleteEsContext = reinterpret_cast<decltype(&zvDeleteEsContext)>(symbol("zvDeleteEsContext"));
    glXMakeContextCurrent(connection(), None, None, nullptr);
    for (const Host &host : hosts) {
        glXDestroyContext(connection(), host.context);
        glXDestroyPbuffer(connection(), host.pbuffer);
        if (host.esContext) deleteEsContext(host.esContext);
    }
    hosts.clear();
}

zvEsContext Gles1::start(const std::string &profile, bool isCore, zvEsContext share) {
    Display *const display = connection();
    const int format[] = {GLX_DRAWABLE_TYPE, GLX_PBUFFER_BIT, GLX_RED_SIZE, 8, GLX_DEPTH_SIZE, 24, None};
    int count = 0;
    GLXFBConfig *const configs = glXChooseFBConfig(display, DefaultScreen(display), format, &count);
    if (!configs || count == 0) throw std::runtime_error("no GLX config");
    const int pbuffer[] = {GLX_PBUFFER_WIDTH, size, GLX_PBUFFER_HEIGHT, size, None};
    const auto create = reinterpret_cast<GLXContext (*)(Display *, GLXFBConfig, GLXContext, Bool, const int *)>(
        glXGetProcAddressARB(reinterpret_cast<const GLubyte *>("glXCreateContextAttribsARB")));
    const int core[] = {0x2091, 3, 0x2092, 2, 0x9126, 1, None}; // major, minor, profile
    const int compatible[] = {0x9126, 2, None};
    Host host;
    host.pbuffer = glXCreatePbuffer(display, configs[0], pbuffer);
    host.context =
        create(display, configs[0], share ? hosts.back().context : nullptr, True, isCore ? core : compatible);
    XFree(configs);
    if (!glXMakeContextCurrent(display, host.pbuffer, host.pbuffer, host.context)) {
        throw std::runtime_error("the host context cannot be bound");
    }
    profileText = profile;
    ContextAttribs attribs = {};
    attribs.requestedMajor = attribs.esMajor = attribs.legacyClient = 1;
    const uint64_t displayAndHandle[2] = {1, 1};
    const auto createEsContext = reinterpret_cast<decltype(&zvCreateEsContext)>(symbol("zvCreateEsContext"));
    thread.es1Context = host.esContext = createEsContext(&attribs, displayAndHandle, &profileText, share);
    hosts.push_back(host);
    // With this, surfaces with and without alpha have the same pixels.
    if (current()) ES(glClearColor)(0, 0, 0, 1);
    return current();
}

zvEsContext Gles1::current() {
    return thread.es1Context;
}

void *Gles1::symbol(const char *name) const {
    return dlsym(m_library, name);
}

Gles1::Pixel Gles1::pixel(GLint x, GLint y) {
    Pixel read = {1, 2, 3, 4};
    ES(glReadPixels)(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
    return read;
}

void Gles1::clear() {
    ES(glClear)(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
}

GLuint Gles1::bindTexture(GLenum target) {
    GLuint texture = 0;
    ES(glGenTextures)(1, &texture);
    ES(glBindTexture)(target, texture);
    ES(glTexParameteri)(target, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    ES(glTexParameteri)(target, GL_TEXTURE_MAG_FILTER, GL_NEAREST);
    ES(glEnable)(target);
    return texture;
}

GLint Gles1::integer(GLenum pname) {
    GLint value = -12345;
    ES(glGetIntegerv)(pname, &value);
    return value;
}

GLint Gles1::error() {
    return static_cast<GLint>(ES(glGetError)());
}
