#include "client_fixture.h"

#include <csignal>
#include <dlfcn.h>

#include <string>
#include <vector>

namespace {

class Client : public ClientTest {
protected:
    void expectBindFails(EGLSurface surface, EGLContext context) {
        EXPECT_FALSE(eglMakeCurrent(m_egl, surface, surface, context));
        EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);
    }
    std::vector<Window> childrenOf(Window window) {
        Window root = 0, parent = 0, *children = nullptr;
        unsigned count = 0;
        XQueryTree(m_x, window, &root, &parent, &children, &count);
        std::vector<Window> result(children, children + count);
        if (children) XFree(children);
        return result;
    }
};

} // namespace

TEST_F(Client, SwapShowsInWindowsOfAnyVisual) {
    initialise(m_x);
    const EGLContext context = makeContext();
    bind(nullptr, context);
    for (const char *library : {LIBRARY_DIRECTORY "/libEGL.so.1", LIBRARY_DIRECTORY "/libGLESv2.so.2"})
        EXPECT_NE(dlopen(library, RTLD_NOW | RTLD_NOLOAD), nullptr) << library;
    const std::string version = reinterpret_cast<const char *>(GlFunctions().getString(GL_VERSION));
    EXPECT_TRUE(version.starts_with("OpenGL ES 3.")) << version;
    for (const bool isDefaultVisual : {true, false}) {
        SCOPED_TRACE(isDefaultVisual);
        const Window window = isDefaultVisual ? makeWindow() : makeWindowOfAnotherVisual();
        const EGLSurface surface = makeSurface(window);
        bind(surface, context);
        const GlFunctions gl;
        EXPECT_EQ(drawAndRead(gl, 1, 0, 0), red);
        EXPECT_EQ(shownAfterSwap(surface, 32, 24), red);
        const auto children = childrenOf(window);
        EXPECT_TRUE(children.size() == 1 || isDefaultVisual);
        for (const Window child : children) {
            XWindowAttributes attributes{};
            XGetWindowAttributes(m_x, child, &attributes);
            EXPECT_EQ(attributes.all_event_masks & ~StructureNotifyMask, 0) << "input goes to the parent";
        }

        XResizeWindow(m_x, window, 200, 100);
        XSync(m_x, False);
        EXPECT_EQ(widthOf(surface), 200);
        eglSwapBuffers(m_egl, surface);
        gl.viewport(0, 0, 200, 100);
        EXPECT_EQ(drawAndRead(gl, 0, 1, 0), green);
        EXPECT_EQ(shownAfterSwap(surface, 190, 90), green) << "the drawable has followed";
        const EGLSurface again = makeSurface(window);
        EXPECT_TRUE(eglMakeCurrent(m_egl, again, again, makeContext()));
        EXPECT_EQ(childrenOf(window), children);
    }
}

// A child window that covered its parent before the parent was mapped received all Expose events of the application.
TEST_F(Client, WindowsOfAnyVisualGetTheirExposeEvents) {
    initialise(m_x);
    const Window window = XCreateSimpleWindow(m_x, DefaultRootWindow(m_x), 0, 0, 64, 48, 0, 0, 0);
    XSelectInput(m_x, window, ExposureMask);
    bind(makeSurface(window), makeContext());
    XMapWindow(m_x, window);
    XSync(m_x, False);
    XEvent event;
    EXPECT_TRUE(XCheckTypedWindowEvent(m_x, window, Expose, &event));
}

TEST_F(Client, BadWindowsGiveFailuresAndNothingMore) {
    initialise(m_x);
    const EGLContext context = makeContext();
    for (const Window window : {makeWindow(), makeWindowOfAnotherVisual()}) {
        const EGLSurface surface = makeSurface(window);
        bind(surface, context);
        const GlFunctions gl;
        XDestroyWindow(m_x, window);
        XSync(m_x, False);
        // Swaps first: the software renderer would allocate by an uninitialised size if it drew at once.
        for (int frame = 0; frame < 3; ++frame) {
            EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
            gl.clear(GL_COLOR_BUFFER_BIT);
        }
        EXPECT_EQ(widthOf(surface), 0);
        expectBindFails(surface, context);
    }
}

TEST_F(Client, ServerThatIsNotThereFailsTheBind) {
    const Window window = makeWindow();
    for (const char *none : {"", ":4711", "no such server"}) {
        setenv("DISPLAY", none, 1);
        initialise(EGL_DEFAULT_DISPLAY);
        const EGLSurface surface = makeSurface(window);
        expectBindFails(surface, makeContext());
        EXPECT_EQ(widthOf(surface), 0);
        EXPECT_TRUE(eglTerminate(m_egl));
    }
}

// Xlib ended the program although the program's own connections were intact.
TEST_F(Client, ServerThatDiesFailsBindsAndEndsNothing) {
    FILE *output = popen("echo $$; exec Xvfb -displayfd 1 -screen 0 640x480x24 -nolisten tcp 2>/dev/null", "r");
    int process = 0, number = -1;
    ASSERT_EQ(fscanf(output, "%d %d", &process, &number), 2) << "Xvfb did not start";
    setenv("DISPLAY", (":" + std::to_string(number)).c_str(), 1);
    Display *x = XOpenDisplay(nullptr);
    const Window window = XCreateSimpleWindow(x, DefaultRootWindow(x), 0, 0, 64, 48, 0, 0, 0);
    XSetCloseDownMode(x, RetainPermanent);
    XCloseDisplay(x);

    initialise(EGL_DEFAULT_DISPLAY);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(window);
    bind(surface, context);
    const GlFunctions gl;
    for (int frame = 0; frame < 20; ++frame) {
        gl.clear(GL_COLOR_BUFFER_BIT);
        // Between draw and swap, since at a draw the software renderer uses an uninitialised size for the drawable.
        if (frame == 10) {
            kill(process, SIGKILL);
            pclose(output);
        }
        EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
    }
    expectBindFails(surface, context);
    EXPECT_EQ(widthOf(surface), 0);
    EXPECT_TRUE(XSync(m_x, False));
}

TEST_F(Client, XErrorsStayWithTheirConnection) {
    static int errors = 0;
    XSetErrorHandler([](Display *, XErrorEvent *) { return ++errors; });
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(makeWindow());
    bind(surface, context);
    const Window root = DefaultRootWindow(m_x);
    const Window inputOnly =
        XCreateWindow(m_x, root, 0, 0, 8, 8, 0, 0, InputOnly, static_cast<Visual *>(CopyFromParent), 0, nullptr);
    const Pixmap pixmap = XCreatePixmap(m_x, root, 8, 8, 24);
    for (const Window bad : {Window(0x12345), Window(1), inputOnly, pixmap}) {
        expectBindFails(makeSurface(bad), context); // creating the surface accepts any value
        EXPECT_EQ(drawAndRead(GlFunctions(), 1, 0, 0), red) << "what was bound is still drawn to";
    }
    const EGLint tooLarge[] = {EGL_WIDTH, 1 << 30, EGL_HEIGHT, 1 << 30, EGL_NONE};
    expectBindFails(eglCreatePbufferSurface(m_egl, m_config, tooLarge), context);
    EXPECT_EQ(errors, 0);
    XMapWindow(m_x, 0x12345);
    XSync(m_x, False);
    EXPECT_EQ(errors, 1) << "its own still reach the application";
}
