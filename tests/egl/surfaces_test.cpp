#include "egl/fixture.h"

using Surfaces = EntryTest;

TEST_F(Surfaces, PbufferCrossesTargetAndFormat) {
    const EGLint target = EGL_TEXTURE_TARGET, format = EGL_TEXTURE_FORMAT;
    const std::pair<std::vector<EGLint>, const char *> rows[] = {
#include "egl/data/pbuffers.def"
    };
    for (auto [attributes, asked] : rows) {
        attributes.push_back(EGL_NONE);
        EXPECT_NE(eglCreatePbufferSurface(initialised(), config(), attributes.data()), EGL_NO_SURFACE);
        EXPECT_THAT(takeLines(asked), SizeIs(1)) << asked;
    }
}

TEST_F(Surfaces, DestroyedWhileCurrentLivesOn) {
    current();
    const EGLSurface surface = eglGetCurrentSurface(EGL_DRAW);
    EXPECT_SUCCEEDS(eglDestroySurface(m_display, surface));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglDestroySurface(m_display, surface));
    EXPECT_EQ(querySurface(surface, EGL_WIDTH), 640);
    takeLog();
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, surface));
    EXPECT_THAT(takeLines("flushBuffer"), SizeIs(1));
}

TEST_F(Surfaces, BindTexImageCopiesFromWhatIsBound) {
    const EGLint rgb[] = {EGL_WIDTH, 64, EGL_HEIGHT, 32, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGB, EGL_NONE};
    const EGLSurface surface = eglCreatePbufferSurface(initialised(), config(), rgb);
    current();
    takeLog();
    EXPECT_SUCCEEDS(eglBindTexImage(m_display, surface, EGL_BACK_BUFFER));
    EXPECT_THAT(takeLines("glCopy"), ElementsAre("glCopyTexImage2D(0xde1, 0, 0x1907, 0, 0, 64, 32, 0)"));
    EXPECT_SUCCEEDS(eglReleaseTexImage(m_display, surface, EGL_BACK_BUFFER));
}
