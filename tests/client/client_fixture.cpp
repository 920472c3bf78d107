#include "client_fixture.h"

#include <X11/Xutil.h>

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

Window ClientTest::makeWindow() {
    return makeWindowOf(DefaultVisual(m_x, DefaultScreen(m_x)), DefaultDepth(m_x, DefaultScreen(m_x)));
}

Window ClientTest::makeWindowOf(Visual *visual, int depth) {
    const Window root = DefaultRootWindow(m_x);
    XSetWindowAttributes attributes{};
    attributes.colormap = XCreateColormap(m_x, root, visual, AllocNone);
    const Window window = XCreateWindow(m_x, root, 0, 0, 64, 48, 0, depth, InputOutput, visual,
                                        CWColormap | CWBorderPixel | CWBackPixel, &attributes);
    XMapWindow(m_x, window);
    XSync(m_x, False);
    return window;
}

Window ClientTest::makeWindowOfAnotherVisual() {
    XVisualInfo found{};
    if (!XMatchVisualInfo(m_x, DefaultScreen(m_x), 32, TrueColor, &found)) throw std::runtime_error("one visual");
    return makeWindowOf(found.visual, 32);
}

EGLSurface ClientTest::makeSurface(Window window) {
    return eglCreateWindowSurface(m_egl, m_config, window, nullptr);
}

void ClientTest::bind(EGLSurface surface, EGLContext context) {
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << std::hex << eglGetError();
}

EGLint ClientTest::widthOf(EGLSurface surface) {
    EGLint width = -1;
    EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width));
    return width;
}

Pixel ClientTest::drawAndRead(const GlFunctions &gl, float red, float green, float blue) {
    gl.clearColor(red, green, blue, 1);
    gl.clear(GL_COLOR_BUFFER_BIT);
    Pixel pixel{1, 2, 3, 4};
    gl.readPixels(5, 5, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
    EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
    return pixel;
}

Pixel ClientTest::shownAfterSwap(EGLSurface surface, int x, int y) {
    EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
    widthOf(surface);
    return shownPixel(x, y);
}

Pixel ClientTest::shownPixel(int x, int y) {
    XImage *image = XGetImage(m_x, DefaultRootWindow(m_x), x, y, 1, 1, AllPlanes, ZPixmap);
    if (!image) return {};
    const unsigned long value = XGetPixel(image, 0, 0);
    XDestroyImage(image);
    return {uint8_t(value >> 16), uint8_t(value >> 8), uint8_t(value), 255};
}
