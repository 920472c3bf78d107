// Programs of the desktop on a real server.
#include "client_fixture.h"

#include <EGL/eglext.h>

#include <barrier>
#include <thread>

namespace {

class DesktopProgram : public ClientTest {
protected:
    DesktopProgram() { setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1); }
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
