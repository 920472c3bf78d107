#include "egl/fixture.h"

#include "host/platform/operations.h"
#include "host/platform/recording/control.h"

namespace {

class DesktopClients : public EntryTest {
protected:
    DesktopClients() { setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1); }
};
using PlatformEntries = EntryTest;

} // namespace

TEST_F(PlatformEntries, DoWhatTheExtFormsDo) {
    const auto id = reinterpret_cast<void *>(0x1234);
    const auto getPlatformDisplay = procAddress<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    const EGLDisplay display = eglGetDisplay(reinterpret_cast<EGLNativeDisplayType>(id));
    EXPECT_EQ(eglGetPlatformDisplay(0xBAD, id, nullptr), display) << "the platform is not looked at";
    EXPECT_EQ(getPlatformDisplay(0xBAD, id, nullptr), display);
    EXPECT_NE(eglGetDisplay(EGL_DEFAULT_DISPLAY), display);
    const auto native = reinterpret_cast<void *>(77);
    const EGLAttrib srgb[] = {EGL_GL_COLORSPACE, EGL_GL_COLORSPACE_SRGB, EGL_NONE};
    const EGLSurface surface = eglCreatePlatformWindowSurface(initialised(), config(), native, srgb);
    EXPECT_EQ(querySurface(surface, EGL_WIDTH), 640) << "the argument is the window itself";
    EXPECT_EQ(querySurface(surface, EGL_GL_COLORSPACE), EGL_GL_COLORSPACE_SRGB);
    EXPECT_NE(eglCreatePlatformPixmapSurface(m_display, config(), native, nullptr), EGL_NO_SURFACE);
}

TEST_F(DesktopClients, FindWhatTheyExpect) {
    recordingSetFormatValue(host::platform::NativeVisualId, 0x21);
    recordingSetFormatValue(host::platform::DrawableTypes, EGL_WINDOW_BIT);
    for (const auto &[attribute, expected] : {std::pair(EGL_NATIVE_VISUAL_ID, 0x21), {EGL_NATIVE_RENDERABLE, 1}}) {
        EGLint value = -77;
        EXPECT_SUCCEEDS(eglGetConfigAttrib(initialised(), config(), attribute, &value));
        EXPECT_EQ(value, expected) << attribute;
    }
    EXPECT_STREQ(eglQueryString(nullptr, EGL_EXTENSIONS),
                 "EGL_EXT_client_extensions EGL_EXT_device_base EGL_EXT_device_enumeration EGL_EXT_device_query "
                 "EGL_EXT_platform_base EGL_EXT_platform_x11 EGL_KHR_platform_x11 "
                 "EGL_MESA_platform_surfaceless EGL_KHR_client_get_all_proc_addresses ");
    EXPECT_EQ(eglGetProcAddress("eglCreateContext"), reinterpret_cast<void (*)()>(eglCreateContext));

    unsigned long window = 77;
    const auto create = procAddress<PFNEGLCREATEPLATFORMWINDOWSURFACEEXTPROC>("eglCreatePlatformWindowSurfaceEXT");
    const EGLSurface surface = create(m_display, config(), &window, nullptr);
    EXPECT_EQ(querySurface(surface, EGL_WIDTH), 640) << "through the pointer";
    EXPECT_FAILS(EGL_BAD_ALLOC, create(m_display, config(), &window, nullptr)); // a window has one
    EXPECT_TRUE(eglDestroySurface(m_display, surface));
    EXPECT_EQ(querySurface(eglCreatePlatformWindowSurface(m_display, config(), &window, nullptr), EGL_WIDTH), 640);
    EXPECT_FAILS(EGL_BAD_NATIVE_WINDOW, create(m_display, config(), nullptr, nullptr));
    EXPECT_EQ(errorsOf([] { EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API) || eglBindAPI(EGL_OPENGL_API)); }),
              "(Error) The application requests desktop OpenGL; this EGL supports OpenGL ES only; try --opengl.\n")
        << "told once";
}
