// The EGL standard's rules in desktop mode, where they differ from a device's.
#include "egl/fixture.h"

#include "host/platform/operations.h"
#include "host/platform/recording/control.h"

namespace {

class StandardRules : public EntryTest {
protected:
    StandardRules() {
        setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1);
        recordingSetFormatValue(host::platform::DrawableTypes, EGL_WINDOW_BIT | EGL_PBUFFER_BIT);
    }
};

} // namespace

TEST_F(StandardRules, AFailedBindLeavesTheOldOne) {
    const EGLContext old = current();
    const EGLContext other = create({EGL_CONTEXT_CLIENT_VERSION, 2}, config());
    const EGLSurface surface = pbuffer();
    const EGLContext unknown = reinterpret_cast<EGLContext>(99);
    const std::tuple<const char *, EGLSurface, EGLSurface, EGLContext, EGLint> rows[] = {
        {"surfaces without a context", surface, surface, EGL_NO_CONTEXT, EGL_BAD_MATCH},
        {"no surface to read from", surface, EGL_NO_SURFACE, other, EGL_BAD_MATCH},
        {"no surface to draw to", EGL_NO_SURFACE, surface, other, EGL_BAD_MATCH},
        {"an unknown surface", surface, unknownSurface, other, EGL_BAD_SURFACE},
        {"an unknown context", surface, surface, unknown, EGL_BAD_CONTEXT},
    };
    for (const auto &[what, draw, read, context, error] : rows) {
        SCOPED_TRACE(what);
        EXPECT_FAILS(error, eglMakeCurrent(m_display, draw, read, context));
        EXPECT_EQ(eglGetCurrentContext(), old);
    }
}

TEST_F(StandardRules, TheLatestErrorIsTold) {
    EXPECT_FALSE(eglDestroySurface(initialised(), unknownSurface));
    EXPECT_FALSE(eglBindAPI(EGL_NONE));
    EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
    EXPECT_FALSE(eglDestroySurface(m_display, unknownSurface));
    EXPECT_SUCCEEDS(eglTerminate(m_display));
}

TEST_F(StandardRules, SwapsAreOfTheSurfaceThatIsDrawnTo) {
    current();
    takeLog();
    EXPECT_SUCCEEDS(eglSwapBuffers(m_display, eglGetCurrentSurface(EGL_DRAW)));
    EXPECT_THAT(takeLines("flush"), ElementsAre(StartsWith("flushApplication"), StartsWith("flushBuffer")))
        << "a frame of a window that is not mapped yet would be lost";
    EXPECT_FAILS(EGL_BAD_SURFACE, eglSwapBuffers(m_display, pbuffer()));
    EXPECT_FAILS(EGL_BAD_NATIVE_PIXMAP, eglCopyBuffers(m_display, eglGetCurrentSurface(EGL_DRAW), 0));
}

TEST_F(StandardRules, AttributesAreChecked) {
    const std::tuple<EGLint, EGLint, EGLint> ofPbuffers[] = {
        {EGL_RENDER_BUFFER, EGL_BACK_BUFFER, EGL_BAD_ATTRIBUTE},
        {EGL_WIDTH, -1, EGL_BAD_PARAMETER},
        {EGL_TEXTURE_TARGET, EGL_TEXTURE_2D, EGL_BAD_MATCH},
        {EGL_GL_COLORSPACE, 7, EGL_BAD_MATCH},
    };
    for (const auto &[attribute, value, error] : ofPbuffers) {
        const EGLint list[] = {attribute, value, EGL_NONE};
        SCOPED_TRACE(attribute);
        EXPECT_FAILS(error, eglCreatePbufferSurface(initialised(), config(), list));
    }
    const EGLContext keeps = create({EGL_CONTEXT_CLIENT_VERSION, 2}, config());
    const std::vector<EGLint> loses = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY,
                                       EGL_LOSE_CONTEXT_ON_RESET};
    EXPECT_FAILS(EGL_BAD_MATCH, create(loses, config(), keeps));
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, create({EGL_CONTEXT_OPENGL_DEBUG, 7}, config()));
}

TEST_F(StandardRules, ReusableSyncsWaitForTheirSignal) {
    initialised();
    const auto createKhr = procAddress<PFNEGLCREATESYNCKHRPROC>("eglCreateSyncKHR");
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglCreateSync(m_display, EGL_NONE, nullptr));
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, createKhr(m_display, EGL_NONE, nullptr));
    // There is no context whose commands could be fenced.
    EXPECT_FAILS(EGL_BAD_MATCH, eglCreateSync(m_display, EGL_SYNC_FENCE, nullptr));

    const EGLSync sync = eglCreateSync(m_display, EGL_SYNC_REUSABLE_KHR, nullptr);
    const auto signal = procAddress<PFNEGLSIGNALSYNCKHRPROC>("eglSignalSyncKHR");
    EXPECT_EQ(eglClientWaitSync(m_display, sync, 0, 0), EGL_TIMEOUT_EXPIRED);
    EXPECT_SUCCEEDS(signal(m_display, sync, EGL_SIGNALED_KHR));
    EXPECT_EQ(eglClientWaitSync(m_display, sync, 0, EGL_FOREVER), EGL_CONDITION_SATISFIED);
    EXPECT_SUCCEEDS(signal(m_display, sync, EGL_UNSIGNALED_KHR));
    EXPECT_EQ(eglClientWaitSync(m_display, sync, 0, 1000), EGL_TIMEOUT_EXPIRED);
    EXPECT_SUCCEEDS(eglDestroySync(m_display, sync));
    EXPECT_FAILS(EGL_BAD_PARAMETER, eglDestroySync(m_display, sync));
}

TEST_F(StandardRules, OneDeviceStandsForTheHost) {
    const auto queryDevices = procAddress<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    const auto queryString = procAddress<PFNEGLQUERYDEVICESTRINGEXTPROC>("eglQueryDeviceStringEXT");
    const auto queryAttrib = procAddress<PFNEGLQUERYDEVICEATTRIBEXTPROC>("eglQueryDeviceAttribEXT");
    const auto queryDisplay = procAddress<PFNEGLQUERYDISPLAYATTRIBEXTPROC>("eglQueryDisplayAttribEXT");
    EGLDeviceEXT device = EGL_NO_DEVICE_EXT;
    EGLint count = 0;
    EXPECT_SUCCEEDS(queryDevices(1, &device, &count));
    EXPECT_EQ(count, 1);
    EGLAttrib value = 0;
    EXPECT_SUCCEEDS(queryDisplay(initialised(), EGL_DEVICE_EXT, &value));
    EXPECT_EQ(value, reinterpret_cast<EGLAttrib>(device));
    EXPECT_TRUE(queryString(device, EGL_EXTENSIONS));
    EXPECT_FAILS(EGL_BAD_ATTRIBUTE, queryAttrib(device, EGL_DEVICE_EXT, &value));
    EXPECT_FAILS(EGL_BAD_PARAMETER, queryDevices(0, &device, &count));
    EXPECT_EQ(queryString(EGL_NO_DEVICE_EXT, EGL_EXTENSIONS), nullptr);
    EXPECT_EQ(eglGetError(), EGL_BAD_DEVICE_EXT);
}
