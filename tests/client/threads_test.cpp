// Four threads that use all objects at once, for the thread sanitizer.
#include "client_fixture.h"

#include <thread>
#include <vector>

using ClientThreads = ClientTest;

TEST_F(ClientThreads, FourCreateBindDrawSwapAndDestroyAtOnce) {
    initialise(EGL_DEFAULT_DISPLAY);
    std::vector<Window> windows;
    for (int i = 0; i < 4; ++i)
        windows.push_back(i % 2 ? makeWindowOfAnotherVisual() : makeWindow());

    const auto work = [&](Window window, float shade) {
        const Pixel expected{uint8_t(shade * 255 + 0.5f), 0, 0, 255};
        for (int round = 0; round < 5; ++round) {
            const EGLContext parent = makeContext(), context = makeContext(parent);
            const EGLSurface surface = makeSurface(window);
            bind(surface, context);
            const GlFunctions gl;
            const EGLSync sync = eglCreateSync(m_egl, EGL_SYNC_FENCE, nullptr);
            for (int frame = 0; frame < 5; ++frame) {
                EXPECT_EQ(drawAndRead(gl, shade, 0, 0), expected);
                EXPECT_TRUE(eglSwapBuffers(m_egl, surface));
            }
            EXPECT_TRUE(eglDestroySync(m_egl, sync));
            EXPECT_TRUE(eglDestroySurface(m_egl, surface));
            EXPECT_TRUE(eglDestroyContext(m_egl, context));
            EXPECT_TRUE(eglMakeCurrent(m_egl, nullptr, nullptr, nullptr));
            EXPECT_TRUE(eglDestroyContext(m_egl, parent));
        }
    };
    const EGLDisplay other = eglGetDisplay(m_x);
    const auto restart = [&] {
        for (int round = 0; round < 50; ++round) {
            EXPECT_TRUE(eglInitialize(other, nullptr, nullptr));
            EXPECT_TRUE(eglTerminate(other));
        }
    };
    std::vector<std::jthread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back(work, windows[i], i / 4.0f);
    threads.emplace_back(restart);
}
