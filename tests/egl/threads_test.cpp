// Several threads on the objects of one display at once; the thread sanitizer looks on.
#include "egl/fixture.h"

#include <thread>

using EntryThreads = EntryTest;

TEST_F(EntryThreads, ObjectsComeAndGoBesideEachOther) {
    current();
    const auto clear = procAddress<void (*)(unsigned)>("glClear");
    const auto work = [&](EGLNativeWindowType id) {
        for (int round = 0; round < 20; ++round) {
            const EGLContext parent = context(), made = context(2, parent);
            const EGLSurface surface = window(id);
            EXPECT_TRUE(eglMakeCurrent(m_display, surface, surface, made));
            clear(1);
            const EGLSync sync = eglCreateSync(m_display, EGL_SYNC_FENCE, nullptr);
            EXPECT_TRUE(eglSwapBuffers(m_display, surface));
            EXPECT_TRUE(eglDestroySync(m_display, sync));
            EXPECT_TRUE(eglDestroySurface(m_display, surface));
            EXPECT_TRUE(eglDestroyContext(m_display, made));
            EXPECT_TRUE(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
            EXPECT_TRUE(eglDestroyContext(m_display, parent));
        }
    };
    const auto other = eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(0x1234));
    const auto restart = [&] {
        for (int round = 0; round < 50; ++round) {
            EXPECT_TRUE(eglInitialize(other, nullptr, nullptr));
            EXPECT_TRUE(eglTerminate(other));
        }
    };
    std::vector<std::thread> threads;
    for (EGLNativeWindowType id : {90, 91, 92})
        threads.emplace_back(work, id);
    threads.emplace_back(restart);
    for (auto &thread : threads)
        thread.join();
}
