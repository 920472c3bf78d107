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
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglWaitNative(1));
    EXPECT_FALSE(eglGetCurrentContext() || eglGetCurrentDisplay() || eglGetCurrentSurface(-1));
    EXPECT_EQ(eglGetError(), EGL_SUCCESS) << "with nothing current the name is not looked at";
    EXPECT_STREQ(eglQueryString(nullptr, EGL_EXTENSIONS), "EGL_EXT_client_extensions EGL_EXT_platform_base ");
    EXPECT_STREQ(eglQueryString(nullptr, EGL_VERSION), "1.5 (Zelvane 6.31 (SDK 4.7@2031846))");
    EXPECT_FALSE(std::filesystem::exists(file));
    EXPECT_FAILS(EGL_BAD_DISPLAY, eglQueryString(nullptr, EGL_VENDOR));
    EXPECT_TRUE(std::filesystem::exists(file)) << "any other entry loads, and makes the file";
}

TEST_F(DisplayEntries, OneDisplayForOneNativeId) {
    const auto getPlatformDisplay = procAddress<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    const auto id = reinterpret_cast<EGLNativeDisplayType>(0x1234);
    const EGLDisplay display = eglGetDisplay(id);
    EXPECT_EQ(eglGetDisplay(id), display);
    EXPECT_EQ(getPlatformDisplay(0xBAD, id, nullptr), display) << "the platform is not looked at";
    EXPECT_NE(eglGetDisplay(EGL_DEFAULT_DISPLAY), display);
    EXPECT_FAILS(EGL_BAD_DISPLAY, eglInitialize(reinterpret_cast<EGLDisplay>(id), nullptr, nullptr));
}

TEST_F(DisplayEntries, InitializeAndTerminateMoveBetweenTwoStates) {
    m_display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EXPECT_FAILS(EGL_NOT_INITIALIZED, eglQueryString(m_display, EGL_VERSION));
    EXPECT_FAILS(EGL_NOT_INITIALIZED, eglTerminate(m_display));
    EGLint major = -1, minor = -1;
    EXPECT_SUCCEEDS(eglInitialize(m_display, &major, &minor));
    EXPECT_EQ(major * 10 + minor, 15);
    const std::pair<EGLint, const char *> strings[] = {
        {EGL_VENDOR, "Tarnwell Graphics"},
        {EGL_VERSION, "1.5 (Zelvane 6.31 (SDK 4.7@2031846))"},
        {EGL_CLIENT_APIS, "OpenGL_ES"},
        {EGL_EXTENSIONS,
         "EGL_ANDROID_image_native_buffer EGL_EXT_create_context_robustness EGL_EXT_swap_buffers_with_damage "
         "EGL_TWG_context_priority EGL_KHR_fence_sync EGL_KHR_gl_colorspace EGL_KHR_create_context "
         "EGL_KHR_create_context_no_error EGL_KHR_image EGL_KHR_image_base EGL_KHR_gl_image "
         "EGL_KHR_no_config_context EGL_KHR_partial_update EGL_KHR_surfaceless_context "
         "EGL_KHR_swap_buffers_with_damage EGL_KHR_wait_sync "}};
    for (const auto &[name, text] : strings)
        EXPECT_STREQ(eglQueryString(m_display, name), text);
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglQueryString(m_display, EGL_WIDTH));

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
    // The context's format is derived with what the host gave, and double-buffered whatever it says.
    EXPECT_EQ(takeLog(), "createPixelFormat(0, 99 12800 0) = format1\n"
                         "createPixelFormat(0, 99 12800 0) = format2\n"
                         "pixelFormatValue(format2, 5) = 0\n"
                         "pixelFormatValue(format2, 8) = 0\n"
                         "pixelFormatValue(format2, 11) = 0\n"
                         "pixelFormatValue(format2, 12) = 24\n"
                         "pixelFormatValue(format2, 13) = 0\n"
                         "pixelFormatValue(format2, 55) = 0\n"
                         "pixelFormatValue(format2, 56) = 0\n"
                         "derivePixelFormat(format2, 99 12800 5 8 0 11 0 12 24 13 0 55 0 56 0 0) = format3\n"
                         "createContext(format3, null) = context1\n"
                         "saveBinding() = null\n"
                         "currentContext() = null\n"
                         "makeCurrent(context1) = true\n"
                         "clearCurrentContext()\n"
                         "releaseContext(context1)\n");
    recordingFailNext("createPixelFormat"); // all configs share one, and stand without it
    EXPECT_SUCCEEDS(eglInitialize(m_display, nullptr, nullptr));
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, window()));
    EXPECT_EQ(takeLog(), "createPixelFormat(0, 99 12800 5 8 24 11 8 12 24 13 8 55 1 56 4 0) = null\n")
        << "the thread's word names the dead probe, which is compared and never followed";
}

TEST_F(DisplayEntries, ProbesPutBackWhatWasCurrent) {
    recordingMakeForeignCurrent(9);
    static_cast<void>(initialised());
    EXPECT_THAT(takeLog(), HasSubstr("restoreBinding(foreign9)\nreleaseContext(context1)\n"));
    current();
    takeLog();
    context(3);
    EXPECT_THAT(takeLog(), HasSubstr("restoreBinding(context3)\nreleaseContext("));
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, eglGetCurrentSurface(EGL_DRAW)));
    EXPECT_EQ(takeLog(), "view(context3) = 0:77\nflushBuffer(context3)\n");
}

TEST_F(DisplayEntries, FailedLoadIsTriedAgain) {
    const std::string home = getenv("HOME");
    setenv("HOME", "", 1);
    const auto errors = errorsOf([] {
        EXPECT_FAILS(EGL_SUCCESS, eglGetDisplay(EGL_DEFAULT_DISPLAY));
        EXPECT_FAILS(EGL_NOT_INITIALIZED, eglInitialize(nullptr, nullptr, nullptr));
    });
    const std::string once = "(Error) ERROR: Failed to retrieve $(HOME) variable.\n"
                             "(Error) Failed to load Zelvane preferences file\n";
    EXPECT_EQ(errors, once + once);
    setenv("HOME", home.c_str(), 1);
    EXPECT_SUCCEEDS(eglInitialize(eglGetDisplay(EGL_DEFAULT_DISPLAY), nullptr, nullptr));
}

TEST_F(DisplayEntries, BuiltInConfigIsTheOnlyOne) {
    const std::pair<EGLint, std::vector<EGLint>> answers[] = {
        {0, {EGL_LEVEL, EGL_MAX_SWAP_INTERVAL, EGL_NATIVE_VISUAL_ID, EGL_NATIVE_VISUAL_TYPE, EGL_CONFORMANT}},
        {1, {EGL_CONFIG_ID, EGL_SAMPLE_BUFFERS, EGL_BIND_TO_TEXTURE_RGBA, EGL_BIND_TO_TEXTURE_RGB}},
        {8, {EGL_RED_SIZE, EGL_GREEN_SIZE, EGL_BLUE_SIZE, EGL_ALPHA_SIZE, EGL_STENCIL_SIZE}},
        {EGL_NONE, {EGL_CONFIG_CAVEAT, EGL_TRANSPARENT_TYPE}},
        {4, {EGL_SAMPLES}},
        {7, {EGL_SURFACE_TYPE}},
        {24, {EGL_DEPTH_SIZE}},
        {32, {EGL_BUFFER_SIZE}},
        {0x45, {EGL_RENDERABLE_TYPE}},
        {1000, {EGL_MIN_SWAP_INTERVAL}}};
    EGLConfig configs[2];
    EGLint value = -77;
    EXPECT_SUCCEEDS(eglGetConfigs(initialised(), configs, 2, &value));
    EXPECT_TRUE(value == 1 && configs[0] == config());
    for (const auto &[expected, attributes] : answers)
        for (const EGLint attribute : attributes) {
            EXPECT_SUCCEEDS(eglGetConfigAttrib(m_display, config(), attribute, &value));
            EXPECT_EQ(value, expected) << std::hex << attribute;
        }
    value = -77;
    for (const EGLint attribute : {EGL_MAX_PBUFFER_WIDTH, EGL_MATCH_NATIVE_PIXMAP, 0})
        EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglGetConfigAttrib(m_display, config(), attribute, &value));
    EXPECT_FAILS(EGL_BAD_CONFIG, eglGetConfigAttrib(m_display, nullptr, EGL_CONFIG_ID, &value));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglGetConfigAttrib(m_display, config(), EGL_CONFIG_ID, nullptr));
    EXPECT_EQ(value, -77);
}

TEST_F(DisplayEntries, ChooseConfigChecksInOrder) {
    const EGLDisplay display = initialised();
    const EGLint bad[] = {EGL_BUFFER_SIZE, -2, EGL_NONE}, none[] = {EGL_RED_SIZE, 9, EGL_NONE};
    EGLConfig chosen = nullptr;
    EGLint count = -77;
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglChooseConfig(display, bad, &chosen, 1, nullptr));
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglChooseConfig(display, bad, &chosen, 1, &count));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglGetConfigs(display, &chosen, 1, nullptr));
    EXPECT_EQ(count, -77);
    EXPECT_SUCCEEDS(eglChooseConfig(display, none, &chosen, 1, &count));
    EXPECT_TRUE(count == 0 && !chosen);
    EXPECT_SUCCEEDS(eglChooseConfig(display, nullptr, &chosen, 1, &count));
    EXPECT_TRUE(count == 1 && chosen == config());
}
