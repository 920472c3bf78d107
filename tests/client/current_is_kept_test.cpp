// An application's current context is kept while the library probes the host, at its load and when a context is
// created.
#include "client_fixture.h"

#include <GL/glx.h>

namespace {

// The current context and drawables of this thread, as GLX reports them.
struct GlxBinding {
    Display *display = glXGetCurrentDisplay();
    GLXDrawable draw = glXGetCurrentDrawable();
    GLXDrawable read = glXGetCurrentReadDrawable();
    GLXContext context = glXGetCurrentContext();
    bool operator==(const GlxBinding &) const = default;
};

class CurrentIsKept : public ClientTest {
protected:
    // A GLX context of the application, which draws to one window and reads from another.
    void useGlx() {
        const int wanted[] = {GLX_DOUBLEBUFFER, True, GLX_RED_SIZE, 8, GLX_GREEN_SIZE, 8, None};
        int count = 0;
        GLXFBConfig *configs = glXChooseFBConfig(m_x, DefaultScreen(m_x), wanted, &count);
        ASSERT_GT(count, 0);
        XVisualInfo *visual = glXGetVisualFromFBConfig(m_x, configs[0]);
        const Window read = makeWindowOf(visual->visual, visual->depth);
        const Window draw = makeWindowOf(visual->visual, visual->depth);
        const GLXContext context = glXCreateNewContext(m_x, configs[0], GLX_RGBA_TYPE, nullptr, True);
        ASSERT_TRUE(glXMakeContextCurrent(m_x, draw, read, context));
        XFree(visual);
        XFree(configs);
    }
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
}

TEST_F(CurrentIsKept, OfEglWhileASecondContextIsMade) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(makeWindow());
    bind(surface, context);
    const GlFunctions gl;
    gl.clearColor(1, 0, 0, 1);
    const GlxBinding eglsOwn;
    EXPECT_NE(makeContext(context, 3), EGL_NO_CONTEXT);
    EXPECT_EQ(GlxBinding(), eglsOwn);
    gl.clear(GL_COLOR_BUFFER_BIT); // with the previous colour
    EXPECT_EQ(shownAfterSwap(surface, 32, 24), red);

    useGlx(); // replaces EGL's context on the thread; EGL then binds its own again
    bind(surface, context);
    EXPECT_EQ(drawAndRead(gl, 1, 0, 0), red);
}
