#include "client_fixture.h"

#include <fstream>
#include <set>
#include <string>

namespace {

class Client : public ClientTest {};

const Pixel red{255, 0, 0, 255};
const Pixel green{0, 255, 0, 255};

// The files of that name that this process has loaded.
std::set<std::string> loadedFiles(const std::string &name) {
    std::set<std::string> files;
    std::ifstream maps("/proc/self/maps");
    for (std::string line; std::getline(maps, line);) {
        const auto slash = line.find('/');
        if (slash != std::string::npos && line.find("/" + name) != std::string::npos) files.insert(line.substr(slash));
    }
    return files;
}

} // namespace

TEST_F(Client, DrawsOnTheReferenceBackEndOfThisBuild) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(makeWindow());
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << std::hex << eglGetError();
    const std::string ours = LIBRARY_DIRECTORY;
    EXPECT_EQ(loadedFiles("libEGL.so"), std::set{ours + "/libEGL.so.1"});
    EXPECT_EQ(loadedFiles("libGLESv2.so"), std::set{ours + "/libGLESv2.so.2"});

    const GlFunctions gl;
    const std::string version = reinterpret_cast<const char *>(gl.getString(GL_VERSION));
    EXPECT_EQ(version.find("OpenGL ES 3."), 0u) << version;
    EXPECT_EQ(drawAndRead(gl, 1, 0, 0), red);
    EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
    EXPECT_EQ(drawAndRead(gl, 0, 1, 0), green);
}

TEST_F(Client, SwapShowsInWindowsOfAnyVisual) {
    initialise(m_x);
    const EGLContext context = makeContext();
    for (const bool isDefaultVisual : {true, false}) {
        SCOPED_TRACE(isDefaultVisual);
        const Window window = isDefaultVisual ? makeWindow() : makeWindowOfAnotherVisual(64, 48);
        ASSERT_NE(window, Window(None));
        const EGLSurface surface = makeSurface(window);
        ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << std::hex << eglGetError();
        const GlFunctions gl;
        drawAndRead(gl, 1, 0, 0);
        EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
        EGLint width = 0, height = 0;
        EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width)); // a round trip, so that the server has drawn
        EXPECT_EQ(shownPixel(32, 24), red);

        XResizeWindow(m_x, window, 200, 100);
        XSync(m_x, False);
        EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width));
        EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_HEIGHT, &height));
        EXPECT_EQ(width, 200);
        EXPECT_EQ(height, 100);
        eglSwapBuffers(m_egl, surface);
        gl.viewport(0, 0, width, height);
        drawAndRead(gl, 0, 1, 0);
        EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
        EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width));
        EXPECT_EQ(shownPixel(190, 90), green) << "the drawable has followed";
    }
}

// A child window that covered its parent before that was mapped kept every Expose from the application.
TEST_F(Client, WindowsOfAnyVisualGetTheirExposeEvents) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const Window window = XCreateSimpleWindow(m_x, DefaultRootWindow(m_x), 0, 0, 64, 48, 0, 0, 0);
    XSelectInput(m_x, window, ExposureMask);
    const EGLSurface surface = makeSurface(window);
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << std::hex << eglGetError();
    XMapWindow(m_x, window);
    XSync(m_x, False);
    XEvent event;
    EXPECT_TRUE(XCheckTypedWindowEvent(m_x, window, Expose, &event));
    const GlFunctions gl;
    drawAndRead(gl, 1, 0, 0);
    EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
    EGLint width = 0;
    EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width)); // a round trip, so that the server has drawn
    EXPECT_EQ(shownPixel(32, 24), red);
}

TEST_F(Client, BadWindowsGiveFailuresAndNothingMore) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface nowhere = makeSurface(0x7ffffff);
    ASSERT_NE(nowhere, EGL_NO_SURFACE) << "the value is not looked at before the bind";
    EXPECT_FALSE(eglMakeCurrent(m_egl, nowhere, nowhere, context));
    EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);

    const Window window = makeWindow();
    const EGLSurface surface = makeSurface(window);
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context)) << std::hex << eglGetError();
    const GlFunctions gl;
    XDestroyWindow(m_x, window);
    XSync(m_x, False);
    for (int frame = 0; frame < 3; ++frame) {
        gl.clear(GL_COLOR_BUFFER_BIT);
        EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
    }
    EGLint width = -1;
    EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &width));
    EXPECT_EQ(width, 0);
    EXPECT_FALSE(eglMakeCurrent(m_egl, surface, surface, context));
    EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);

    const EGLSurface fresh = makeSurface(makeWindow());
    EXPECT_TRUE(eglMakeCurrent(m_egl, fresh, fresh, context)) << std::hex << eglGetError();
    EXPECT_EQ(drawAndRead(gl, 1, 0, 0), red);
}

TEST_F(Client, ServerThatIsNotThereFailsTheBind) {
    const Window window = makeWindow();
    const std::string display = getenv("DISPLAY");
    setenv("DISPLAY", ":4711", 1);
    initialise(EGL_DEFAULT_DISPLAY);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(window);
    EXPECT_NE(context, EGL_NO_CONTEXT);
    EXPECT_FALSE(eglMakeCurrent(m_egl, surface, surface, context));
    EXPECT_EQ(eglGetError(), EGL_BAD_ALLOC);
    EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
    EXPECT_TRUE(eglTerminate(m_egl));
    setenv("DISPLAY", display.c_str(), 1);
}

TEST_F(Client, SurfacelessAndPbufferContextsDraw) {
    initialise(EGL_DEFAULT_DISPLAY);
    const EGLContext context = makeContext();
    ASSERT_TRUE(eglMakeCurrent(m_egl, nullptr, nullptr, context)) << std::hex << eglGetError();
    const GlFunctions gl;
    EXPECT_NE(gl.getString(GL_VERSION), nullptr);

    const EGLint size[] = {EGL_WIDTH, 32, EGL_HEIGHT, 16, EGL_NONE};
    const EGLSurface pbuffer = eglCreatePbufferSurface(m_egl, m_config, size);
    ASSERT_TRUE(eglMakeCurrent(m_egl, pbuffer, pbuffer, context)) << std::hex << eglGetError();
    EXPECT_EQ(drawAndRead(gl, 0, 1, 0), green);
    EXPECT_TRUE(eglSwapBuffers(m_egl, pbuffer));
    EXPECT_EQ(drawAndRead(gl, 1, 0, 0), red);
}

TEST_F(Client, ContextsShareObjects) {
    initialise(m_x);
    const EGLContext first = makeContext(), second = makeContext(first);
    const EGLSurface surface = makeSurface(makeWindow());
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, second)) << "which binds the first one in passing";
    const GlFunctions gl;
    GLuint texture = 0;
    gl.genTextures(1, &texture);
    gl.bindTexture(GL_TEXTURE_2D, texture);
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, first));
    EXPECT_TRUE(gl.isTexture(texture));
}

TEST_F(Client, SyncsSignal) {
    initialise(m_x);
    const EGLContext context = makeContext();
    const EGLSurface surface = makeSurface(makeWindow());
    ASSERT_TRUE(eglMakeCurrent(m_egl, surface, surface, context));
    const GlFunctions gl;
    gl.clear(GL_COLOR_BUFFER_BIT);
    const EGLSync sync = eglCreateSync(m_egl, EGL_SYNC_FENCE, nullptr);
    ASSERT_NE(sync, EGL_NO_SYNC);
    EXPECT_EQ(eglClientWaitSync(m_egl, sync, 0, EGL_FOREVER), EGL_CONDITION_SATISFIED);
    EGLAttrib status = 0;
    EXPECT_TRUE(eglGetSyncAttrib(m_egl, sync, EGL_SYNC_STATUS, &status));
    EXPECT_EQ(status, 0x9119) << "GL_SIGNALED, as the host tells it";
    EXPECT_TRUE(eglDestroySync(m_egl, sync));
}
