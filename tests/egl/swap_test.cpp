#include "egl/fixture.h"

using Swap = EntryTest;

TEST_F(Swap, FlushesOnlyTheBoundView) {
    const EGLContext context = current();
    const EGLSurface bound = eglGetCurrentSurface(EGL_DRAW), other = window(78);
    const uint64_t frames = zvCurrentFrameNumber();
    takeLog();
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, other));
    EXPECT_EQ(takeLog(), "view(context3) = 0:77\n");
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, bound));
    EXPECT_EQ(takeLog(), "view(context3) = 0:77\nflushBuffer(context3)\n");
    EXPECT_EQ(zvCurrentFrameNumber(), frames + 2) << "every swap counts";
    EXPECT_FAILS(EGL_BAD_SURFACE, eglSwapBuffers(m_display, unknownSurface));

    const auto damage = procAddress<PFNEGLSWAPBUFFERSWITHDAMAGEKHRPROC>("eglSwapBuffersWithDamageKHR");
    EXPECT_SUCCEEDS(damage(m_display, bound, reinterpret_cast<const EGLint *>(0x10), 5)) << "rectangles are not read";
    EXPECT_THAT(takeLines("flushBuffer"), SizeIs(1));

    const EGLSurface buffer = pbuffer();
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, buffer, buffer, context));
    takeLog();
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, buffer));
    EXPECT_THAT(takeLines("flushBuffer"), SizeIs(0));
}

TEST_F(Swap, DamageRegionNeedsTheAgeFirst) {
    const auto setDamage = procAddress<PFNEGLSETDAMAGEREGIONKHRPROC>("eglSetDamageRegionKHR");
    EXPECT_FAILS(EGL_BAD_MATCH, setDamage(EGL_NO_DISPLAY, unknownSurface, nullptr, 0));
    current();
    const EGLSurface surface = eglGetCurrentSurface(EGL_DRAW);
    EXPECT_FAILS(EGL_BAD_DISPLAY, setDamage(EGL_NO_DISPLAY, unknownSurface, nullptr, 0));
    EXPECT_FAILS(EGL_BAD_SURFACE, setDamage(m_display, unknownSurface, nullptr, 0));
    EXPECT_FAILS(EGL_BAD_MATCH, setDamage(m_display, window(), nullptr, 0));
    EXPECT_FAILS(EGL_BAD_ACCESS, setDamage(m_display, surface, nullptr, 0));
    for (int frame = 0; frame < 2; ++frame) {
        querySurface(surface, EGL_BUFFER_AGE_KHR);
        EXPECT_SUCCEEDS(setDamage(m_display, surface, nullptr, 0));
        EXPECT_FAILS(EGL_BAD_ACCESS, setDamage(m_display, surface, nullptr, 0));
        EXPECT_SUCCEEDS(eglSwapBuffers(m_display, surface));
        EXPECT_FAILS(EGL_BAD_ACCESS, setDamage(m_display, surface, nullptr, 0));
    }
}

TEST_F(Swap, IntervalIsHandedOnUnclamped) {
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglSwapInterval(initialised(), 1));
    current();
    takeLog();
    EXPECT_SUCCEEDS(eglSwapInterval(m_display, 7));
    EXPECT_SUCCEEDS(eglSwapInterval(m_display, -3));
    EXPECT_EQ(takeLog(), "setSwapInterval(context3, 7)\nsetSwapInterval(context3, -3)\n");
}

TEST_F(Swap, CopyBuffersFailsWithoutAnError) {
    EXPECT_FAILS(EGL_BAD_SURFACE, eglCopyBuffers(initialised(), unknownSurface, 0));
    const EGLSurface surface = window();
    EXPECT_EQ(outputOf([&] { EXPECT_FAILS(EGL_SUCCESS, eglCopyBuffers(m_display, surface, 0)); }),
              "(Warning) eglCopyBuffers is not currently supported by Zelvane.\n");
}
