#include "egl/fixture.h"

#include <filesystem>

#include "host/platform/recording/control.h"

using DisplayEntries = EntryTest;

TEST_F(DisplayEntries, FirstErrorSticksUntilASuccess) {
    EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API) || eglTerminate(nullptr));
    EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER) << "and not the later EGL_BAD_DISPLAY";
    EXPECT_EQ(eglGetError(), EGL_SUCCESS);
    EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API));
    EXPECT_EQ(eglQueryAPI(), EGLenum(EGL_OPENGL_ES_API));
    EXPECT_EQ(eglGetError(), EGL_SUCCESS) << "success clears what was pending";
}

TEST_F(DisplayEntries, SmallEntriesLoadNothing) {
    const std::string file = getenv("HOME") + std::string("/.kzrconfig/Tarnwell Graphics/com.tarnlight.Zelvane.plist");
    EXPECT_SUCCEEDS(eglBindAPI(EGL_OPENGL_ES_API) && eglWaitClient() && eglWaitGL() && eglReleaseThread());
    EXPECT_SUCCEEDS(eglWaitNative(EGL_CORE_NATIVE_ENGINE));
    EXPECT_FALSE(eglGetCurrentContext() || eglGetCurrentDisplay() || eglGetCurrentSurface(-1));
    EXPECT_EQ(eglGetError(), EGL_SUCCESS) << "with nothing current the name is not looked at";
    EXPECT_STREQ(eglQueryString(nullptr, EGL_EXTENSIONS), "EGL_EXT_client_extensions EGL_EXT_platform_base ");
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_FAILS(EGL_BAD_DISPLAY, eglQueryString(nullptr, EGL_VENDOR));
    EXPECT_TRUE(std::filesystem::exists(file)) << "any other entry loads, and makes the file";
}

TEST_F(DisplayEntries, InitializeAndTerminateMoveBetweenTwoStates) {
    m_display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EXPECT_FAILS(EGL_NOT_INITIALIZED, eglQueryString(m_display, EGL_VERSION));
    EXPECT_FAILS(EGL_NOT_INITIALIZED, eglTerminate(m_display));
    EGLint major = -1, minor = -1;
    EXPECT_SUCCEEDS(eglInitialize(m_display, &major, &minor));
    EXPECT_EQ(major * 10 + minor, 15);
    const EGLint none[] = {EGL_RED_SIZE, 9, EGL_NONE};
    EGLConfig chosen = nullptr;
    EGLint count = -77;
    EXPECT_SUCCEEDS(eglChooseConfig(m_display, none, &chosen, 1, &count));
    EXPECT_TRUE(count == 0 && !chosen);
#define STRING(name, text) EXPECT_STREQ(eglQueryString(m_display, name), text);
#include "egl/data/strings.def"

    const EGLContext first = context();
    takeLog();
    EXPECT_SUCCEEDS(eglInitialize(m_display, nullptr, nullptr));
    EXPECT_THAT(takeLines("createPixelFormat"), IsEmpty()) << "a second initialise keeps the list";
    EXPECT_SUCCEEDS(eglTerminate(m_display));
    EXPECT_SUCCEEDS(eglInitialize(m_display, nullptr, nullptr));
    EXPECT_THAT(takeLines("createPixelFormat"), SizeIs(1));
    EXPECT_FAILS(EGL_BAD_CONTEXT, eglDestroyContext(m_display, first));
    EXPECT_GT(context(), first) << "handles go on counting";
}

TEST_F(DisplayEntries, FirstCallProbesTheHost) {
    recordingSetFormatValue(12, 24); // the depth
    m_display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    // The context's format is derived from the host's values, and always double-buffered.
    EXPECT_EQ(takeLog(), golden("egl/data/first_call.txt"));
    recordingFailNext("createPixelFormat"); // all configs share one, and exist without it
    EXPECT_SUCCEEDS(eglInitialize(m_display, nullptr, nullptr));
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, window()));
    EXPECT_EQ(takeLog(), "createPixelFormat(0, 99 12800 5 8 24 11 8 12 24 13 8 55 1 56 4 0) = null\n")
        << "the thread's word names the dead probe, which is compared and never followed";
}
