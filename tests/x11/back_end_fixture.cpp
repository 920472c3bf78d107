#include "x11/back_end_fixture.h"

#include <GL/glx.h>
#include <dlfcn.h>

#include <filesystem>
#include <stdexcept>

namespace {

zvEsContext currentEsContext = nullptr;

// Stays open: the driver is unloaded with the last connection, and its losses could not be told by its name any more.
Display *connection() {
    static Display *const display = XOpenDisplay(nullptr);
    return display;
}

} // namespace

extern "C" ZV_EXPORT zvEsContext zvCurrentEsContext(void) {
    return currentEsContext;
}

struct HostContext {
    Display *display = connection();
    GLXContext context = nullptr;
    GLXPbuffer pbuffer = 0;
};

BackEnd::BackEnd() : m_host(new HostContext), m_library(dlopen(ZELVANE_BACK_END, RTLD_LAZY | RTLD_GLOBAL)) {
    if (!m_host->display) throw std::runtime_error("no X display");
    if (!m_library) throw std::runtime_error(dlerror());
    createEsContext = reinterpret_cast<decltype(createEsContext)>(symbol("zvCreateEsContext"));
    setEsContextAttribs = reinterpret_cast<decltype(setEsContextAttribs)>(symbol("zvSetEsContextAttribs"));
    deleteEsContext = reinterpret_cast<decltype(deleteEsContext)>(symbol("zvDeleteEsContext"));
    getExtProcAddress = reinterpret_cast<decltype(getExtProcAddress)>(symbol("zvGetExtProcAddress"));
    setRenderMode = reinterpret_cast<decltype(setRenderMode)>(symbol("zvSetRenderMode"));

    Display *const display = m_host->display;
    const int format[] = {
        GLX_DRAWABLE_TYPE, GLX_PBUFFER_BIT, GLX_RENDER_TYPE, GLX_RGBA_BIT, GLX_RED_SIZE, 8, GLX_DEPTH_SIZE, 24, None};
    int count = 0;
    GLXFBConfig *const configs = glXChooseFBConfig(display, DefaultScreen(display), format, &count);
    if (!configs || count == 0) throw std::runtime_error("no GLX config");
    const int pbuffer[] = {GLX_PBUFFER_WIDTH, size, GLX_PBUFFER_HEIGHT, size, None};
    m_host->pbuffer = glXCreatePbuffer(display, configs[0], pbuffer);
    const auto create = reinterpret_cast<PFNGLXCREATECONTEXTATTRIBSARBPROC>(
        glXGetProcAddressARB(reinterpret_cast<const GLubyte *>("glXCreateContextAttribsARB")));
    const int version[] = {
        GLX_CONTEXT_MAJOR_VERSION_ARB,    3,   GLX_CONTEXT_MINOR_VERSION_ARB, 2, GLX_CONTEXT_PROFILE_MASK_ARB,
        GLX_CONTEXT_CORE_PROFILE_BIT_ARB, None};
    m_host->context = create(display, configs[0], nullptr, True, version);
    XFree(configs);
    if (!glXMakeContextCurrent(display, m_host->pbuffer, m_host->pbuffer, m_host->context)) {
        throw std::runtime_error("the host context cannot be bound");
    }
}

BackEnd::~BackEnd() {
    Display *const display = m_host->display;
    glXMakeContextCurrent(display, None, None, nullptr);
    glXDestroyContext(display, m_host->context);
    if (currentEsContext) deleteEsContext(currentEsContext);
    currentEsContext = nullptr;
    glXDestroyPbuffer(display, m_host->pbuffer);
}

void BackEnd::start(int esMajor, int esMinor, bool isSrgb) {
    attribs.requestedMajor = esMajor;
    attribs.esMajor = esMajor;
    attribs.esMinor = esMinor;
    attribs.srgbFramebuffer = isSrgb;
    const uint64_t displayAndHandle[2] = {1, 1};
    currentEsContext = createEsContext(&attribs, displayAndHandle, nullptr, nullptr);
    ASSERT_NE(currentEsContext, nullptr);
}

zvEsContext &BackEnd::current() {
    return currentEsContext;
}

GLint BackEnd::integer(GLenum name) {
    GLint value = -1;
    ES(glGetIntegerv)(name, &value);
    return value;
}

void *BackEnd::symbol(const char *name) const {
    return dlsym(m_library, name);
}

std::string BackEnd::homeOf(void *function) {
    Dl_info info = {};
    if (!dladdr(function, &info)) return "";
    return std::filesystem::path(info.dli_fname).filename();
}

GLuint BackEnd::compile(GLenum type, const std::vector<std::string> &source) {
    std::vector<const GLchar *> strings;
    for (const std::string &string : source)
        strings.push_back(string.c_str());
    const GLuint shader = ES(glCreateShader)(type);
    ES(glShaderSource)(shader, static_cast<GLsizei>(strings.size()), strings.data(), nullptr);
    ES(glCompileShader)(shader);
    return shader;
}
