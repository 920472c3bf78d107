// Whatever an application has current outlives what the library does on its own account: it probes the host when it
// loads and when a context is made.
#include "client_fixture.h"

#include <GL/glx.h>

namespace {

const Pixel red{255, 0, 0, 255};
const Pixel green{0, 255, 0, 255};

// What GLX says is current on this thread.
struct GlxBinding {
    Display *display = glXGetCurrentDisplay();
    GLXDrawable draw = glXGetCurrentDrawable();
    GLXDrawable read = glXGetCurrentReadDrawable();
    GLXContext context = glXGetCurrentContext();
    bool operator==(const GlxBinding &) const = default;
};

template <typename Function>
Function hostFunction(const char *name) {
    return reinterpret_cast<Function>(glXGetProcAddressARB(reinterpret_cast<const GLubyte *>(name)));
}

class CurrentIsKept : public ClientTest {
protected:
    // A context of the application's own on a window of its own.
    void useGlx() {
        const int wanted[] = {GLX_DOUBLEBUFFER, True, GLX_RED_SIZE, 8, GLX_GREEN_SIZE, 8, None};
        int count = 0;
        GLXFBConfig *configs = glXChooseFBConfig(m_x, DefaultScreen(m_x), wanted, &count);
        ASSERT_GT(count, 0);
        XVisualInfo *visual = glXGetVisualFromFBConfig(m_x, configs[0]);
        XSetWindowAttributes attributes{};
        attributes.colormap = XCreateColormap(m_x, DefaultRootWindow(m_x), visual->visual, AllocNone);
        m_glxWindow = XCreateWindow(m_x, DefaultRootWindow(m_x), 0, 0, 64, 48, 0, visual->depth, InputOutput,
                                    visual->visual, CWColormap | CWBorderPixel, &attributes);
        XMapWindow(m_x, m_glxWindow);
        const GLXContext context = glXCreateNewContext(m_x, configs[0], GLX_RGBA_TYPE, nullptr, True);
        ASSERT_TRUE(glXMakeContextCurrent(m_x, m_glxWindow, m_glxWindow, context));
        XFree(visual);
        XFree(configs);
    }

    // Draws with GLX and reads back; then swaps and reads the screen.
    void expectGlxDraws() {
        hostFunction<PFNGLCLEARCOLORPROC>("glClearColor")(0, 1, 0, 1);
        hostFunction<PFNGLCLEARPROC>("glClear")(GL_COLOR_BUFFER_BIT);
        Pixel pixel{};
        hostFunction<PFNGLREADPIXELSPROC>("glReadPixels")(5, 5, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel.data());
        EXPECT_EQ(pixel, green);
        glXSwapBuffers(m_x, m_glxWindow);
        glXWaitGL();
        XSync(m_x, False);
        EXPECT_EQ(shownPixel(32, 24), green);
    }

    Window m_glxWindow = None;
};

} // namespace

TEST_F(CurrentIsKept, OfGlxWhileTheLibraryLoadsAndMakesContexts) {
    useGlx();
    const GlxBinding own;
    initialise(m_x);
    EXPECT_EQ(GlxBinding(), own) << "the load has probed the host";
    for (const EGLint major : {1, 2, 3}) {
        EXPECT_NE(makeContext(EGL_NO_CONTEXT, major), EGL_NO_CONTEXT);
        EXPECT_EQ(GlxBinding(), own) << "ES " << major;
    }
    expectGlxDraws();
}

TEST_F(CurrentIsKept, OfEglWhileASecondContextIsMade) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(makeWindow());
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << std::hex << eglGetError();
    const GlFunctions gl;
    gl.clearColor(1, 0, 0, 1);
    const GlxBinding own;
    EXPECT_NE(makeContext(EGL_NO_CONTEXT, 3), EGL_NO_CONTEXT);
    EXPECT_NE(makeContext(context), EGL_NO_CONTEXT);
    EXPECT_EQ(GlxBinding(), own);
    EXPECT_EQ(eglGetCurrentContext(), context);
    gl.clear(GL_COLOR_BUFFER_BIT); // with the colour from before
    EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
    EGLint width = 0;
    EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width)); // a round trip, so that the server has drawn
    EXPECT_EQ(shownPixel(32, 24), red);
}

TEST_F(CurrentIsKept, OfGlxBesideEglOnAnotherWindow) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(makeWindow());
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context));
    const GlFunctions gl;
    useGlx(); // takes the thread over behind EGL's back
    const GlxBinding own;
    EXPECT_NE(makeContext(), EGL_NO_CONTEXT);
    EXPECT_EQ(GlxBinding(), own);
    expectGlxDraws();
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << "EGL takes it back";
    EXPECT_EQ(drawAndRead(gl, 1, 0, 0), red);
}
