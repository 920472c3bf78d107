#include "client_fixture.h"

#include <X11/Xutil.h>

namespace {

template <typename Function>
void take(Function &function, const char *name) {
    function = reinterpret_cast<Function>(eglGetProcAddress(name));
}

Window makeWindowWith(Display *x, int width, int height, int depth, Visual *visual) {
    const Window root = DefaultRootWindow(x);
    XSetWindowAttributes attributes{};
    attributes.colormap = XCreateColormap(x, root, visual, AllocNone);
    const Window window = XCreateWindow(x, root, 0, 0, width, height, 0, depth, InputOutput, visual,
                                        CWColormap | CWBorderPixel | CWBackPixel, &attributes);
    XMapWindow(x, window);
    XSync(x, False);
    return window;
}

} // namespace

GlFunctions::GlFunctions() {
    take(clear, "glClear");
    take(clearColor, "glClearColor");
    take(readPixels, "glReadPixels");
    take(getString, "glGetString");
    take(getError, "glGetError");
    take(viewport, "glViewport");
    take(genTextures, "glGenTextures");
    take(bindTexture, "glBindTexture");
    take(isTexture, "glIsTexture");
}

ClientTest::ClientTest() : m_x(XOpenDisplay(nullptr)) {
    if (!m_x) throw std::runtime_error("the tests need an X server");
}

ClientTest::~ClientTest() {
    XCloseDisplay(m_x);
}

void ClientTest::initialise(EGLNativeDisplayType native) {
    m_egl = eglGetDisplay(native);
    ASSERT_TRUE(eglInitialize(m_egl, nullptr, nullptr));
    EGLint count = 0;
    ASSERT_TRUE(eglChooseConfig(m_egl, nullptr, &m_config, 1, &count));
    ASSERT_EQ(count, 1);
}

EGLContext ClientTest::makeContext(EGLContext share, EGLint major) {
    const EGLint attributes[] = {EGL_CONTEXT_CLIENT_VERSION, major, EGL_NONE};
    return eglCreateContext(m_egl, m_config, share, attributes);
}

Window ClientTest::makeWindow(int width, int height) {
    return makeWindowWith(m_x, width, height, DefaultDepth(m_x, DefaultScreen(m_x)),
                          DefaultVisual(m_x, DefaultScreen(m_x)));
}

Window ClientTest::makeWindowOfAnotherVisual(int width, int height) {
    XVisualInfo wanted{};
    wanted.c_class = TrueColor;
    wanted.depth = 32;
    int count = 0;
    XVisualInfo *found = XGetVisualInfo(m_x, VisualClassMask | VisualDepthMask, &wanted, &count);
    const Window window = count > 0 ? makeWindowWith(m_x, width, height, 32, found[0].visual) : None;
    if (found) XFree(found);
    return window;
}

EGLSurface ClientTest::makeSurface(Window window) {
    return eglCreateWindowSurface(m_egl, m_config, window, nullptr);
}

Pixel ClientTest::drawAndRead(const GlFunctions &gl, float red, float green, float blue) {
    gl.clearColor(red, green, blue, 1);
    gl.clear(GL_COLOR_BUFFER_BIT);
    Pixel pixel{1, 2, 3, 4};
    gl.readPixels(5, 5, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
    EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
    return pixel;
}

Pixel ClientTest::shownPixel(int x, int y) {
    XImage *image = XGetImage(m_x, DefaultRootWindow(m_x), x, y, 1, 1, AllPlanes, ZPixmap);
    if (!image) return {};
    const unsigned long value = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return {uint8_t(value >> 16), uint8_t(value >> 8), uint8_t(value), 255};
}
