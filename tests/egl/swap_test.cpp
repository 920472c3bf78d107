#include "egl/fixture.h"

using Swap = EntryTest;

TEST_F(Swap, FlushesOnlyTheBoundView) {
    const EGLContext context = current();
    const EGLSurface bound = eglGetCurrentSurface(EGL_DRAW), other = window(78);
    const uint64_t frames = zvCurrentFrameNumber();
    takeLog();
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, other));
    EXPECT_EQ(takeLog(), "view(context2) = 0:77\n");
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, bound));
    EXPECT_EQ(takeLog(), "view(context2) = 0:77\nflushBuffer(context2)\n");
    EXPECT_EQ(zvCurrentFrameNumber(), frames + 2) << "every swap counts";

    const auto damage = procAddress<PFNEGLSWAPBUFFERSWITHDAMAGEKHRPROC>("eglSwapBuffersWithDamageKHR");
    EXPECT_SUCCEEDS(damage(m_display, bound, reinterpret_cast<const EGLint *>(0x10), 5)) << "rectangles are not read";
    EXPECT_THAT(takeLines("flushBuffer"), SizeIs(1));

    const EGLDisplay otherServer = eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(0x1234));
    EXPECT_SUCCEEDS(eglInitialize(otherServer, nullptr, nullptr));
    const EGLSurface sameNumber = eglCreateWindowSurface(otherServer, config(), 77, nullptr);
    EXPECT_SUCCEEDS(eglSwapBuffers(otherServer, sameNumber));
    EXPECT_THAT(takeLines("flushBuffer"), SizeIs(1)) << "through another display: the window alone is compared";
    const EGLSurface sameWindow = window(), buffer = pbuffer(), refused = pbuffer(0, 0);
    const std::tuple<const char *, EGLSurface, EGLSurface, bool> rows[] = {
#include "egl/data/flushes.def"
    };
    for (const auto &[reason, current, swapped, isFlushed] : rows) {
        EXPECT_SUCCEEDS(eglMakeCurrent(m_display, current, current, context));
        takeLog();
        EXPECT_SUCCEEDS(eglSwapBuffers(m_display, swapped));
        EXPECT_THAT(takeLines("flushBuffer(context2)"), SizeIs(isFlushed)) << reason;
    }
}

TEST_F(Swap, DamageRegionNeedsTheAgeAndNothingIsClampedOrCopied) {
    const auto setDamage = procAddress<PFNEGLSETDAMAGEREGIONKHRPROC>("eglSetDamageRegionKHR");
    current();
    const EGLSurface surface = eglGetCurrentSurface(EGL_DRAW);
    for (int frame = 0; frame < 2; ++frame) {
        querySurface(surface, EGL_BUFFER_AGE_KHR);
        EXPECT_SUCCEEDS(setDamage(m_display, surface, nullptr, 0));
        EXPECT_FAILS(EGL_BAD_ACCESS, setDamage(m_display, surface, nullptr, 0));
        EXPECT_SUCCEEDS(eglSwapBuffers(m_display, surface));
        EXPECT_FAILS(EGL_BAD_ACCESS, setDamage(m_display, surface, nullptr, 0));
    }
    takeLog();
    EXPECT_SUCCEEDS(eglSwapInterval(m_display, -3));
    EXPECT_EQ(takeLog(), "setSwapInterval(context2, -3)\n") << "not clamped";
    EXPECT_EQ(outputOf([&] { EXPECT_FAILS(EGL_SUCCESS, eglCopyBuffers(m_display, surface, 0)); }),
              "(Warning) eglCopyBuffers is not currently supported by Zelvane.\n");
}
