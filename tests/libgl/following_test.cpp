// libGL.so.1 for desktop programs, opened by a program that draws with EGL and with GLX.
#include <gtest/gtest.h> // before Xlib, whose macros it does not survive

#include <EGL/egl.h>
#include <GL/glx.h>

#include <dlfcn.h>
#include <string>
#include <thread>

#include "support/environment.h"

namespace {

struct Order {
    const char *name;
    bool isGlFirst;
    bool isGlAfterTheBind;

    friend void PrintTo(const Order &order, std::ostream *out) { *out << order.name; }
};

class Following : public testing::TestWithParam<Order> {
protected:
    Following() : m_x(XOpenDisplay(nullptr)) {
        if (GetParam().isGlFirst) openGl();
        // Opened as toolkits do; the names of libGL.so.1 are in its scope.
        m_egl = dlopen(OWN_EGL, RTLD_NOW | RTLD_LOCAL);
        if (!GetParam().isGlFirst && !GetParam().isGlAfterTheBind) openGl();
    }
    ~Following() override { XCloseDisplay(m_x); }

    void openGl() {
        m_gl = dlopen(OWN_GL, RTLD_NOW | RTLD_GLOBAL);
        ASSERT_TRUE(m_gl) << dlerror();
    }
    template <typename Function>
    Function *egl(const char *name) {
        return reinterpret_cast<Function *>(dlsym(m_egl, name));
    }
    template <typename Function>
    Function *gl(const char *name) {
        return reinterpret_cast<Function *>(dlsym(m_gl, name));
    }
    template <typename Function>
    Function *lookUp(const char *name) {
        const auto get = gl<decltype(glXGetProcAddress)>("glXGetProcAddressARB");
        return reinterpret_cast<Function *>(get(reinterpret_cast<const GLubyte *>(name)));
    }
#define EGL(name) egl<decltype(name)>(#name)
#define GL(name) gl<decltype(name)>(#name)

    void bindEs() {
        m_display = EGL(eglGetDisplay)(m_x);
        ASSERT_TRUE(EGL(eglInitialize)(m_display, nullptr, nullptr));
        const EGLint wanted[] = {EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE},
                     size[] = {EGL_WIDTH, 8, EGL_HEIGHT, 8, EGL_NONE};
        const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
        EGLConfig config = nullptr;
        EGLint count = 0;
        ASSERT_TRUE(EGL(eglChooseConfig)(m_display, wanted, &config, 1, &count));
        m_surface = EGL(eglCreatePbufferSurface)(m_display, config, size);
        m_context = EGL(eglCreateContext)(m_display, config, EGL_NO_CONTEXT, version);
        ASSERT_TRUE(EGL(eglMakeCurrent)(m_display, m_surface, m_surface, m_context));
    }
    bool unbindEs() {
        return EGL(eglMakeCurrent)(m_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    }

    void makeGlx() {
        int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, None};
        XVisualInfo *visual = GL(glXChooseVisual)(m_x, DefaultScreen(m_x), attributes);
        ASSERT_TRUE(visual);
        m_glx = GL(glXCreateContext)(m_x, visual, nullptr, True);
        XSetWindowAttributes own{};
        own.colormap = XCreateColormap(m_x, DefaultRootWindow(m_x), visual->visual, AllocNone);
        m_window = XCreateWindow(m_x, DefaultRootWindow(m_x), 0, 0, 8, 8, 0, visual->depth, InputOutput, visual->visual,
                                 CWColormap | CWBorderPixel, &own);
        XFree(visual);
    }
    std::string version() {
        return reinterpret_cast<const char *>(GL(glGetString)(GL_VERSION));
    }
    std::string versionLookedUp() {
        return reinterpret_cast<const char *>(lookUp<decltype(glGetString)>("glGetString")(GL_VERSION));
    }
    void expectEs() {
        EXPECT_EQ(version().find("OpenGL ES"), 0U);
        EXPECT_EQ(versionLookedUp(), version());
        EXPECT_EQ(GL(glXGetCurrentContext)(), nullptr);
        EXPECT_EQ(lookUp<decltype(glXGetCurrentDisplay)>("glXGetCurrentDisplay")(), nullptr);
        EXPECT_EQ(GL(glXGetCurrentDrawable)(), None);
    }
    void expectGlx() {
        EXPECT_EQ(version().find("OpenGL ES"), std::string::npos);
        EXPECT_EQ(versionLookedUp(), version());
        EXPECT_EQ(GL(glXGetCurrentContext)(), m_glx);
        EXPECT_EQ(GL(glXGetCurrentDrawable)(), m_window);
    }

    const Variable m_desktop{"ZELVANE_DESKTOP_CLIENTS", "1"};
    Display *m_x;
    void *m_egl = nullptr, *m_gl = nullptr;
    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLSurface m_surface = EGL_NO_SURFACE;
    EGLContext m_context = EGL_NO_CONTEXT;
    GLXContext m_glx = nullptr;
    Window m_window = None;
};

constexpr Order orders[] = {{"GlFirst", true, false}, {"EglFirst", false, false}, {"GlAfterTheBind", false, true}};

} // namespace

TEST_P(Following, GoesToEsWhileItIsCurrentAndToTheHostOtherwise) {
    bindEs();
    if (GetParam().isGlAfterTheBind) openGl();
    makeGlx();
    expectEs();
    EXPECT_FALSE(GL(glXMakeCurrent)(m_x, m_window, m_glx)) << "the thread has a context of EGL";
    EXPECT_EQ(EGL(eglGetCurrentContext)(), m_context);
    std::thread([&] {
        ASSERT_TRUE(GL(glXMakeCurrent)(m_x, m_window, m_glx));
        expectGlx();
        GL(glXMakeCurrent)(m_x, None, nullptr);
    }).join();
    expectEs();

    ASSERT_TRUE(unbindEs());
    ASSERT_TRUE(GL(glXMakeCurrent)(m_x, m_window, m_glx));
    expectGlx();
    ASSERT_TRUE(GL(glXMakeCurrent)(m_x, None, nullptr));
    ASSERT_TRUE(EGL(eglMakeCurrent)(m_display, m_surface, m_surface, m_context));
    expectEs();
}

TEST_P(Following, DrawsAndDropsWhatEsLacks) {
    bindEs();
    if (GetParam().isGlAfterTheBind) openGl();
    GL(glClearColor)(0, 1, 0, 1);
    GL(glClear)(GL_COLOR_BUFFER_BIT);
    GLubyte pixel[4] = {};
    GL(glReadPixels)(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    EXPECT_EQ(pixel[1], 255);
    EXPECT_EQ(GL(glGetError)(), GLenum(GL_NO_ERROR));
    GL(glBegin)(GL_TRIANGLES); // on the host it would make the next call an error
    GL(glClear)(GL_COLOR_BUFFER_BIT);
    EXPECT_EQ(GL(glGetError)(), GLenum(GL_NO_ERROR));
    const auto nobodys = lookUp<double(double)>("glNobodys");
    ASSERT_TRUE(nobodys);
    EXPECT_EQ(nobodys(2), 0);
    EXPECT_EQ(nobodys, lookUp<double(double)>("glNobodys"));
}

INSTANTIATE_TEST_SUITE_P(Orders, Following, testing::ValuesIn(orders),
                         [](const auto &info) { return std::string(info.param.name); });
