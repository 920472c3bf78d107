#include "egl_window.h"

#include <X11/Xutil.h>

#include <cstdio>
#include <stdexcept>

namespace {

// Throws an exception that names the call and EGL's error.
[[noreturn]] void fail(const std::string &what) {
    char code[16];
    std::snprintf(code, sizeof code, "0x%04X", static_cast<unsigned>(eglGetError()));
    throw std::runtime_error(what + " (EGL error " + code + ")");
}

} // namespace

EglWindow::EglWindow(const char *title, Size size, EGLint samples) {
    try {
        m_x = XOpenDisplay(nullptr);
        if (!m_x) throw std::runtime_error("no X display: set DISPLAY to a running X server");
        m_display = eglGetDisplay(m_x);
        if (m_display == EGL_NO_DISPLAY) fail("EGL has no such display");
        if (!eglInitialize(m_display, nullptr, nullptr)) fail("EGL cannot be initialised");
        chooseConfig(samples);
        openWindow(title, size);
        bindContext();
    } catch (...) {
        close();
        throw;
    }
}

EglWindow::~EglWindow() {
    close();
}

void EglWindow::chooseConfig(EGLint samples) {
    const EGLint wanted[] = {EGL_SURFACE_TYPE,
                             EGL_WINDOW_BIT,
                             EGL_RENDERABLE_TYPE,
                             EGL_OPENGL_ES2_BIT,
                             EGL_RED_SIZE,
                             8,
                             EGL_GREEN_SIZE,
                             8,
                             EGL_BLUE_SIZE,
                             8,
                             EGL_DEPTH_SIZE,
                             24,
                             EGL_SAMPLE_BUFFERS,
                             samples > 0 ? 1 : 0,
                             EGL_SAMPLES,
                             samples,
                             EGL_NONE};
    EGLint count = 0;
    if (!eglChooseConfig(m_display, wanted, &m_config, 1, &count)) fail("eglChooseConfig failed");
    if (count == 0) {
        throw std::runtime_error("no config with 8 bits for each color, 24 of depth and " + std::to_string(samples) +
                                 " samples");
    }
}

void EglWindow::openWindow(const char *title, Size size) {
    // Some systems require a window of the config's visual; the others return 0.
    const int screen = DefaultScreen(m_x);
    Visual *visual = DefaultVisual(m_x, screen);
    int depth = DefaultDepth(m_x, screen);
    XVisualInfo wanted = {};
    wanted.visualid = static_cast<VisualID>(configAttribute(EGL_NATIVE_VISUAL_ID));
    int count = 0;
    XVisualInfo *const found = wanted.visualid ? XGetVisualInfo(m_x, VisualIDMask, &wanted, &count) : nullptr;
    if (found && count > 0) {
        visual = found->visual;
        depth = found->depth;
    }
    if (found) XFree(found);

    const Window root = RootWindow(m_x, screen);
    m_colormap = XCreateColormap(m_x, root, visual, AllocNone);
    XSetWindowAttributes attributes = {};
    attributes.colormap = m_colormap;
    attributes.event_mask = StructureNotifyMask;
    m_window = XCreateWindow(m_x, root, 0, 0, static_cast<unsigned>(size.width), static_cast<unsigned>(size.height), 0,
                             depth, InputOutput, visual, CWColormap | CWEventMask | CWBorderPixel, &attributes);
    XStoreName(m_x, m_window, title);
    m_deleteMessage = XInternAtom(m_x, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(m_x, m_window, &m_deleteMessage, 1);
    XMapWindow(m_x, m_window);
    for (XEvent event = {}; event.type != MapNotify;)
        XNextEvent(m_x, &event);
}

void EglWindow::bindContext() {
    m_surface = eglCreateWindowSurface(m_display, m_config, m_window, nullptr);
    if (m_surface == EGL_NO_SURFACE) fail("the window surface cannot be created");
    if (!eglBindAPI(EGL_OPENGL_ES_API)) fail("eglBindAPI failed");
    const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
    m_context = eglCreateContext(m_display, m_config, EGL_NO_CONTEXT, version);
    if (m_context == EGL_NO_CONTEXT) fail("the OpenGL ES 2 context cannot be created");
    if (!eglMakeCurrent(m_display, m_surface, m_surface, m_context)) fail("the context cannot be bound to the window");
}

void EglWindow::close() {
    if (m_display != EGL_NO_DISPLAY) {
        eglMakeCurrent(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        if (m_context != EGL_NO_CONTEXT) eglDestroyContext(m_display, m_context);
        if (m_surface != EGL_NO_SURFACE) eglDestroySurface(m_display, m_surface);
        eglTerminate(m_display);
        eglReleaseThread();
    }
    if (!m_x) return;
    if (m_window) XDestroyWindow(m_x, m_window);
    if (m_colormap) XFreeColormap(m_x, m_colormap);
    XCloseDisplay(m_x);
}

GlFunctions EglWindow::loadFunctions() const {
    GlFunctions gl = {};
#define GL_FUNCTION(name)                                                                                              \
    gl.name = reinterpret_cast<decltype(gl.name)>(eglGetProcAddress(#name));                                           \
    if (!gl.name) throw std::runtime_error("eglGetProcAddress does not find " #name);
    GL_FUNCTIONS(GL_FUNCTION)
#undef GL_FUNCTION
    return gl;
}

Size EglWindow::surfaceSize() const {
    Size size;
    if (!eglQuerySurface(m_display, m_surface, EGL_WIDTH, &size.width) ||
        !eglQuerySurface(m_display, m_surface, EGL_HEIGHT, &size.height)) {
        fail("the size of the surface cannot be queried");
    }
    return size;
}

void EglWindow::resize(Size size) {
    XResizeWindow(m_x, m_window, static_cast<unsigned>(size.width), static_cast<unsigned>(size.height));
    XSync(m_x, False);
}

bool EglWindow::handleEvents() {
    while (XPending(m_x) > 0) {
        XEvent event;
        XNextEvent(m_x, &event);
        if (event.type == ClientMessage && static_cast<Atom>(event.xclient.data.l[0]) == m_deleteMessage) return false;
    }
    return true;
}

void EglWindow::swapBuffers() {
    if (!eglSwapBuffers(m_display, m_surface)) fail("eglSwapBuffers failed");
}

std::string EglWindow::eglVersion() const {
    const char *const text = eglQueryString(m_display, EGL_VERSION);
    return text ? text : "";
}

std::string EglWindow::eglVendor() const {
    const char *const text = eglQueryString(m_display, EGL_VENDOR);
    return text ? text : "";
}

EGLint EglWindow::configAttribute(EGLint attribute) const {
    EGLint value = 0;
    if (!eglGetConfigAttrib(m_display, m_config, attribute, &value)) fail("the config cannot be queried");
    return value;
}
