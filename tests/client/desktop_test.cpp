// Desktop programs on a real server.
#include "client_fixture.h"

#include <EGL/eglext.h>
#include <X11/Xutil.h>

#include <barrier>
#include <thread>

namespace {

class DesktopProgram : public ClientTest {
protected:
    DesktopProgram() { setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1); }
    // Chooses the first config that supports pixmap surfaces.
    void choosePixmapConfig() {
        const EGLint attributes[] = {EGL_SURFACE_TYPE, EGL_PIXMAP_BIT, EGL_NONE};
        EGLint count = 0;
        ASSERT_TRUE(eglChooseConfig(m_egl, attributes, &m_config, 1, &count));
        ASSERT_EQ(count, 1);
        XVisualInfo wanted{};
        EGLint visual = 0;
        eglGetConfigAttrib(m_egl, m_config, EGL_NATIVE_VISUAL_ID, &visual);
        wanted.visualid = static_cast<VisualID>(visual);
        XVisualInfo *found = XGetVisualInfo(m_x, VisualIDMask, &wanted, &count);
        ASSERT_TRUE(found);
        m_depth = static_cast<unsigned>(found->depth);
        XFree(found);
    }
    Pixmap makePixmap(unsigned depth) { return XCreatePixmap(m_x, DefaultRootWindow(m_x), 32, 16, depth); }
    unsigned long texel(Pixmap pixmap) {
        XImage *image = XGetImage(m_x, pixmap, 5, 5, 1, 1, AllPlanes, ZPixmap);
        const unsigned long value = XGetPixel(image, 0, 0) & 0xFFFFFF;
        XDestroyImage(image);
        return value;
    }
    EGLint surfaceError(Pixmap pixmap) {
        EXPECT_EQ(eglCreatePixmapSurface(m_egl, m_config, pixmap, nullptr), EGL_NO_SURFACE);
        return eglGetError();
    }

    unsigned m_depth = 0;
};

} // namespace

TEST_F(DesktopProgram, ContextsWithoutConfigDrawToTheFirstSurfaceAfterNone) {
    initialise(reinterpret_cast<EGLNativeDisplayType>(m_x));
    const EGLint attributes[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
    const EGLContext context = eglCreateContext(m_egl, EGL_NO_CONFIG_KHR, EGL_NO_CONTEXT, attributes);
    ASSERT_TRUE(eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, context));
    const EGLSurface surface = makeSurface(makeWindow());
    bind(surface, context);
    EXPECT_EQ(drawAndRead(GlFunctions(), 0, 1, 0), green);
    EXPECT_EQ(shownAfterSwap(surface, 5, 5), green);
}

TEST_F(DesktopProgram, FirstBindsOfAGroupWaitForEachOther) {
    initialise(reinterpret_cast<EGLNativeDisplayType>(m_x));
    for (int round = 0; round < 20; ++round) {
        const EGLContext first = makeContext(), second = makeContext(first);
        std::barrier start(2);
        const auto bindOnce = [&](EGLContext context) {
            start.arrive_and_wait();
            EXPECT_TRUE(eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, context)) << std::hex << eglGetError();
            EXPECT_TRUE(eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
        };
        std::jthread one(bindOnce, first), other(bindOnce, second);
        one.join();
        other.join();
        EXPECT_TRUE(eglDestroyContext(m_egl, second));
        EXPECT_TRUE(eglDestroyContext(m_egl, first));
    }
}

TEST_F(DesktopProgram, DrawsToPixmapsAndCopiesToThem) {
    initialise(reinterpret_cast<EGLNativeDisplayType>(m_x));
    choosePixmapConfig();
    const Pixmap pixmap = makePixmap(m_depth), copy = makePixmap(m_depth);
    const EGLContext context = makeContext();
    const EGLSurface surface = eglCreatePixmapSurface(m_egl, m_config, pixmap, nullptr);
    bind(surface, context);
    EGLint value = 0;
    EXPECT_TRUE(eglQuerySurface(m_egl, surface, EGL_WIDTH, &value));
    EXPECT_EQ(value, 32);
    EXPECT_TRUE(eglQueryContext(m_egl, context, EGL_RENDER_BUFFER, &value));
    EXPECT_EQ(value, EGL_SINGLE_BUFFER);
    const GlFunctions gl;
    EXPECT_EQ(drawAndRead(gl, 0, 1, 0), green);
    EXPECT_TRUE(eglWaitClient());
    EXPECT_EQ(texel(pixmap), 0x00FF00U);
    drawAndRead(gl, 1, 0, 0);
    EXPECT_TRUE(eglCopyBuffers(m_egl, surface, copy));
    EXPECT_EQ(texel(copy), 0xFF0000U);
    drawAndRead(gl, 0, 0, 1);
    EXPECT_TRUE(eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT));
    EXPECT_EQ(texel(pixmap), 0x0000FFU) << "an unbind shows it too";

    EXPECT_EQ(surfaceError(None), EGL_BAD_NATIVE_PIXMAP);
    EXPECT_EQ(surfaceError(makeWindow()), EGL_BAD_NATIVE_PIXMAP);
    EXPECT_EQ(surfaceError(makePixmap(1)), EGL_BAD_MATCH);
    EXPECT_FALSE(eglCopyBuffers(m_egl, surface, copy));
    EXPECT_EQ(eglGetError(), EGL_BAD_SURFACE) << "that nothing is drawn to";
}
