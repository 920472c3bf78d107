#include "egl/fixture.h"

namespace {

using Surfaces = EntryTest;

const auto unknownConfig = reinterpret_cast<EGLConfig>(55);

} // namespace

TEST_F(Surfaces, CreationFailsInOrder) {
    const EGLDisplay display = initialised();
    const EGLint bad[] = {EGL_WIDTH, 4, EGL_NONE};
    EXPECT_FAILS(EGL_BAD_CONFIG, eglCreateWindowSurface(display, unknownConfig, 0, bad));
    EXPECT_FAILS(EGL_BAD_NATIVE_WINDOW, eglCreateWindowSurface(display, config(), 0, bad));
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglCreateWindowSurface(display, config(), 77, bad));
    EXPECT_FAILS(EGL_BAD_CONFIG, eglCreatePbufferSurface(display, unknownConfig, bad));
    const EGLint notForPbuffers[] = {EGL_WIDTH, 4, EGL_RENDER_BUFFER, EGL_BACK_BUFFER, EGL_NONE};
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglCreatePbufferSurface(display, config(), notForPbuffers));
    EXPECT_FAILS(EGL_BAD_CONFIG, eglCreatePixmapSurface(display, unknownConfig, 5, bad));
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglCreatePixmapSurface(display, config(), 5, bad));
    EXPECT_FAILS(EGL_BAD_PARAMETER,
                 eglCreatePbufferFromClientBuffer(display, EGL_OPENVG_IMAGE, nullptr, unknownConfig, nullptr));
}

TEST_F(Surfaces, WindowAnswersFromHostAndMap) {
    const EGLint single[] = {EGL_RENDER_BUFFER, EGL_SINGLE_BUFFER, EGL_VG_COLORSPACE, 1234, EGL_NONE};
    const EGLSurface surface = eglCreateWindowSurface(initialised(), config(), 77, single);
    // The last one succeeds and stores nothing.
    const std::pair<EGLint, EGLint> answers[] = {{EGL_WIDTH, 640},
                                                 {EGL_RENDER_BUFFER, EGL_SINGLE_BUFFER},
                                                 {EGL_VG_COLORSPACE, 1234},
                                                 {EGL_SWAP_BEHAVIOR, EGL_BUFFER_DESTROYED},
                                                 {EGL_TEXTURE_FORMAT, EGL_NO_TEXTURE},
                                                 {EGL_CONFIG_ID, 1},
                                                 {EGL_GL_COLORSPACE, EGL_GL_COLORSPACE_LINEAR},
                                                 {EGL_BUFFER_AGE_KHR, 0},
                                                 {EGL_LARGEST_PBUFFER, -77}};
    for (const auto &[attribute, answer] : answers)
        EXPECT_EQ(querySurface(surface, attribute), answer) << std::hex << attribute;
    EGLint value = -77;
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglQuerySurface(m_display, surface, EGL_MIPMAP_LEVEL, &value));
    EXPECT_EQ(value, -77);
    EXPECT_FAILS(EGL_BAD_SURFACE, eglQuerySurface(m_display, unknownSurface, EGL_WIDTH, &value));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglQuerySurface(m_display, surface, EGL_WIDTH, nullptr));
}

TEST_F(Surfaces, PbufferCrossesTargetAndFormat) {
    const EGLint target = EGL_TEXTURE_TARGET, format = EGL_TEXTURE_FORMAT;
    const std::pair<std::vector<EGLint>, const char *> rows[] = {
        // asked of the host: target, internal format, level, width, height
        {{EGL_WIDTH, 64, EGL_HEIGHT, 32}, "(0, 0, 0, 64, 32)"},
        {{EGL_WIDTH, 4, target, EGL_TEXTURE_2D, format, EGL_TEXTURE_RGBA, EGL_HEIGHT, 2}, "(12383, 12382, 0, 4, 2)"},
        {{EGL_WIDTH, 4, target, EGL_NO_TEXTURE, format, EGL_NO_TEXTURE, EGL_HEIGHT, 2}, "(6408, 3553, 0, 4, 2)"},
        {{EGL_WIDTH, 4, target, EGL_TEXTURE_2D, target, EGL_TEXTURE_RGB, EGL_HEIGHT, -1}, "(6407, 0, 0, 4, -1)"},
        {{EGL_LARGEST_PBUFFER, 1, EGL_WIDTH, 4, EGL_VG_COLORSPACE, 7, EGL_HEIGHT, 2}, "(0, 0, 0, 4, 2)"},
    };
    for (auto [attributes, asked] : rows) {
        attributes.push_back(EGL_NONE);
        EXPECT_NE(eglCreatePbufferSurface(initialised(), config(), attributes.data()), EGL_NO_SURFACE);
        EXPECT_THAT(takeLines(asked), SizeIs(1)) << asked;
    }
    const EGLSurface refused = eglCreatePbufferSurface(m_display, config(), nullptr);
    EXPECT_EQ(querySurface(refused, EGL_WIDTH), 0) << "the host refuses size 0, the surface stands all the same";
}

TEST_F(Surfaces, PixmapIsAHandleAndAMap) {
    const EGLSurface pixmap = eglCreatePixmapSurface(initialised(), config(), 5, nullptr);
    EXPECT_EQ(querySurface(pixmap, EGL_WIDTH), 0);
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, pixmap));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglBindTexImage(m_display, pixmap, EGL_BACK_BUFFER));
    for (const EGLint attribute : {EGL_MIPMAP_LEVEL, EGL_SWAP_BEHAVIOR, EGL_MULTISAMPLE_RESOLVE})
        EXPECT_SUCCEEDS(eglSurfaceAttrib(m_display, pixmap, attribute, EGL_BUFFER_PRESERVED));
    EXPECT_EQ(querySurface(pixmap, EGL_SWAP_BEHAVIOR), EGL_BUFFER_DESTROYED) << "nothing is stored";
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglSurfaceAttrib(m_display, pixmap, EGL_WIDTH, 1));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglSurfaceAttrib(m_display, unknownSurface, EGL_WIDTH, 1));
    EXPECT_SUCCEEDS(eglDestroySurface(m_display, pixmap));
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
    const EGLint mipmapped[] = {EGL_WIDTH, 1, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_MIPMAP_TEXTURE, 1, EGL_NONE};
    const EGLSurface surface = eglCreatePbufferSurface(initialised(), config(), rgb);
    const EGLSurface refused = eglCreatePbufferSurface(m_display, config(), mipmapped);
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglBindTexImage(m_display, unknownSurface, EGL_SINGLE_BUFFER));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglBindTexImage(m_display, unknownSurface, EGL_BACK_BUFFER));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglBindTexImage(m_display, window(), EGL_BACK_BUFFER));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglBindTexImage(m_display, pbuffer(), EGL_BACK_BUFFER));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglBindTexImage(m_display, refused, EGL_BACK_BUFFER));
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglBindTexImage(m_display, surface, EGL_BACK_BUFFER));
    current();
    takeLog();
    EXPECT_SUCCEEDS(eglBindTexImage(m_display, surface, EGL_BACK_BUFFER));
    EXPECT_THAT(takeLines("glCopy"), ElementsAre("glCopyTexImage2D(0xde1, 0, 0x1907, 0, 0, 64, 32, 0)"));

    EXPECT_SUCCEEDS(eglReleaseTexImage(m_display, surface, EGL_BACK_BUFFER));
    EXPECT_FAILS(EGL_BAD_SURFACE, eglReleaseTexImage(m_display, unknownSurface, EGL_SINGLE_BUFFER));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglReleaseTexImage(m_display, surface, EGL_SINGLE_BUFFER));
}
