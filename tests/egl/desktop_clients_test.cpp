#include "egl/fixture.h"

#include "host/platform/operations.h"
#include "host/platform/recording/control.h"

namespace {

class DesktopClients : public EntryTest {
protected:
    DesktopClients() { setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1); }
    EGLint configValue(EGLint attribute) {
        EGLint value = -77;
        EXPECT_SUCCEEDS(eglGetConfigAttrib(initialised(), config(), attribute, &value));
        return value;
    }
};
using PlatformEntries = EntryTest;

unsigned long window77 = 77;

} // namespace

TEST_F(PlatformEntries, DoWhatTheExtFormsDo) {
    const auto id = reinterpret_cast<void *>(0x1234);
    EXPECT_EQ(eglGetPlatformDisplay(0xBAD, id, nullptr), eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(id)));
    const auto native = reinterpret_cast<void *>(77);
    const EGLAttrib srgb[] = {EGL_GL_COLORSPACE, EGL_GL_COLORSPACE_SRGB, EGL_NONE};
    const EGLSurface surface = eglCreatePlatformWindowSurface(initialised(), config(), native, srgb);
    EXPECT_EQ(querySurface(surface, EGL_WIDTH), 640) << "the argument is the window itself";
    EXPECT_EQ(querySurface(surface, EGL_GL_COLORSPACE), EGL_GL_COLORSPACE_SRGB);
    EXPECT_NE(eglCreatePlatformPixmapSurface(m_display, config(), native, nullptr), EGL_NO_SURFACE);
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglCreatePlatformPixmapSurface(m_display, config(), native, srgb));
    const EGLAttrib beyond32Bits[] = {(EGLAttrib(1) << 32) | EGL_RENDER_BUFFER, EGL_BACK_BUFFER, EGL_NONE};
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, eglCreatePlatformWindowSurface(m_display, config(), native, beyond32Bits));
}

TEST_F(DesktopClients, FindAVisualAPlatformAndCoreEntries) {
    recordingSetFormatValue(host::platform::NativeVisualId, 0x21);
    recordingSetFormatValue(host::platform::NativeVisualType, 4);
    EXPECT_EQ(configValue(EGL_NATIVE_VISUAL_ID), 0x21);
    EXPECT_EQ(configValue(EGL_NATIVE_VISUAL_TYPE), 4);
    EXPECT_EQ(configValue(EGL_NATIVE_RENDERABLE), 1);
    EXPECT_STREQ(eglQueryString(nullptr, EGL_EXTENSIONS),
                 "EGL_EXT_client_extensions EGL_EXT_platform_base EGL_EXT_platform_x11 ");
    EXPECT_EQ(eglGetProcAddress("eglCreateContext"), reinterpret_cast<void (*)()>(eglCreateContext));
    EXPECT_EQ(eglGetProcAddress("eglCreatePlatformPixmapSurface"),
              reinterpret_cast<void (*)()>(eglCreatePlatformPixmapSurface));
    EXPECT_EQ(eglGetProcAddress("eglNone"), nullptr);
}

TEST_F(DesktopClients, PlatformEntriesFollowTheirPointer) {
    using Create = PFNEGLCREATEPLATFORMWINDOWSURFACEEXTPROC;
    const auto create = procAddress<Create>("eglCreatePlatformWindowSurfaceEXT");
    EXPECT_EQ(querySurface(create(initialised(), config(), &window77, nullptr), EGL_WIDTH), 640);
    EXPECT_EQ(querySurface(eglCreatePlatformWindowSurface(m_display, config(), &window77, nullptr), EGL_WIDTH), 640);
    EXPECT_FAILS(EGL_BAD_NATIVE_WINDOW, create(m_display, config(), nullptr, nullptr));
}

TEST_F(DesktopClients, DesktopOpenGLIsToldOfOnce) {
    testing::internal::CaptureStderr();
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglBindAPI(EGL_OPENGL_API));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglBindAPI(EGL_OPENGL_API));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "(Error) The application asks EGL for desktop OpenGL; this EGL has OpenGL ES alone.\n");
}
