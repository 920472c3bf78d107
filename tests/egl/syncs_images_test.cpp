#include "egl/fixture.h"

namespace {

using Syncs = EntryTest;
using Images = EntryTest;

EGLSync fence() {
    return eglCreateSync(eglGetCurrentDisplay(), EGL_SYNC_FENCE, nullptr);
}

} // namespace

TEST_F(Syncs, WaitsAndAttributesAreTranslated) {
    current();
    takeLog();
    const EGLSync sync = fence();
    EXPECT_EQ(sync, reinterpret_cast<EGLSync>(0x5000)) << "the host's";
    for (const EGLint flags : {0, 1, 2, -1})
        EXPECT_EQ(eglClientWaitSync(m_display, sync, flags, 12), EGL_CONDITION_SATISFIED);
    EXPECT_SUCCEEDS(eglWaitSync(m_display, sync, 0));
    hostGl().syncValue = -2;
    EGLAttrib value = 77;
    for (const EGLint attribute : {EGL_SYNC_TYPE, EGL_SYNC_CONDITION, EGL_SYNC_STATUS, EGL_WIDTH})
        EXPECT_SUCCEEDS(eglGetSyncAttrib(m_display, sync, attribute, &value));
    EXPECT_EQ(value, -2) << "widened with its sign";
    EXPECT_EQ(takeLog(), golden("egl/data/syncs.txt"));
#define WAIT(host, expected)                                                                                           \
    hostGl().clientWaitResult = host;                                                                                  \
    EXPECT_EQ(eglClientWaitSync(m_display, sync, 0, EGL_FOREVER), expected);
#include "egl/data/wait_results.def"
    EGLint narrow = 77;
    const auto attribKhr = procAddress<PFNEGLGETSYNCATTRIBKHRPROC>("eglGetSyncAttribKHR");
    EXPECT_FAILS(EGL_BAD_PARAMETER, attribKhr(m_display, nullptr, EGL_SYNC_STATUS, &narrow));
    EXPECT_EQ(narrow, 0) << "stored after a failure too";
}

TEST_F(Syncs, NothingWorksWithoutACurrentContext) {
    current();
    const EGLSync sync = fence();
    EXPECT_SUCCEEDS(eglMakeCurrent(m_display, nullptr, nullptr, nullptr));
    takeLog();
    EGLAttrib value = 77;
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglWaitSync(m_display, sync, 0));
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglGetSyncAttrib(m_display, sync, EGL_SYNC_STATUS, &value));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglDestroySync(m_display, sync));
    EXPECT_EQ(value, 77);
    EXPECT_EQ(takeLog(), "");
    current();
    EXPECT_SUCCEEDS(eglDestroySync(m_display, sync)) << "it has stayed known";
    EXPECT_THAT(takeLines("glDeleteSync"), ElementsAre("glDeleteSync(0x5000)"));
    const EGLSync left = fence();
    EXPECT_SUCCEEDS(eglTerminate(m_display));
    EXPECT_THAT(takeLines("glDeleteSync"), IsEmpty()) << "the host's fences are left behind";
    EXPECT_SUCCEEDS(eglInitialize(m_display, nullptr, nullptr));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglDestroySync(m_display, left));
}

TEST_F(Images, RecordsAreReadThroughTheHandle) {
    const auto buffer = reinterpret_cast<EGLClientBuffer>(0x4242);
    const auto badContext = reinterpret_cast<EGLContext>(99);
    const EGLDisplay display = initialised();
    const EGLImage image = eglCreateImage(display, badContext, EGL_GL_TEXTURE_2D, buffer, nullptr);
    ASSERT_NE(image, EGL_NO_IMAGE) << "the context is not looked at for a texture";
    EXPECT_EQ(static_cast<const uint32_t *>(image)[0], uint32_t(EGL_GL_TEXTURE_2D));
    EXPECT_EQ(static_cast<const uint64_t *>(image)[1], 0x4242u);

    EXPECT_NE(eglCreateImage(display, nullptr, EGL_NATIVE_BUFFER_ANDROID, buffer, nullptr), EGL_NO_IMAGE);
    EXPECT_SUCCEEDS(eglDestroyImage(display, image));
    EXPECT_EQ(eglDestroyImage(display, image), EGLBoolean(12300));
}
