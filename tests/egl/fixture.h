// A process with the staged library, an initialised display and access to the fakes.
#pragma once

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "fakes/control.h"
#include "support/golden.h"

using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

class EntryTest : public testing::Test {
protected:
    EntryTest();

    // The calls of the recording platform, the fake host and the fake back ends since the last call, one per line.
    static std::string takeLog();
    // The lines that contain the text.
    static std::vector<std::string> takeLines(const std::string &containing);

    // The output of the action to a standard stream.
    template <typename Action>
    static std::string errorsOf(Action action) {
        testing::internal::CaptureStderr();
        action();
        return testing::internal::GetCapturedStderr();
    }
    template <typename Action>
    static std::string outputOf(Action action) {
        testing::internal::CaptureStdout();
        action();
        fflush(stdout);
        return testing::internal::GetCapturedStdout();
    }

    // Writes a preferences file with these keys and values, before the first EGL call.
    static void prefer(const std::string &pairs);

    static void useBackEnds(const char *directory); // below the stage
    static FakeBackEnd &backEnd();                  // of ES 2
    static FakeGl &hostGl();

    EGLDisplay initialised();
    EGLConfig config();
    EGLContext create(std::vector<EGLint> attributes, EGLConfig from, EGLContext share = EGL_NO_CONTEXT);
    EGLContext context(EGLint major = 2, EGLContext share = EGL_NO_CONTEXT);
    EGLSurface window(EGLNativeWindowType id = 77);
    EGLSurface pbuffer(EGLint width = 16, EGLint height = 8);
    // A context of this version, current on a window. The first one's host context is context2, since the load probes
    // the host with context1.
    EGLContext current(EGLint major = 2);

    // The result of eglQuerySurface; -77 if it writes nothing.
    EGLint querySurface(EGLSurface surface, EGLint attribute);

    EGLDisplay m_display = EGL_NO_DISPLAY;
    const EGLSurface unknownSurface = reinterpret_cast<EGLSurface>(99);
};

// A result of eglGetProcAddress with its type.
template <typename Function>
Function procAddress(const char *name) {
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

// Expects the failure result (false, null or 0) and the error.
#define EXPECT_FAILS(error, call)                                                                                      \
    do {                                                                                                               \
        EXPECT_FALSE(call);                                                                                            \
        EXPECT_EQ(eglGetError(), error);                                                                               \
    } while (false)

#define EXPECT_SUCCEEDS(call) EXPECT_TRUE(succeeded(call))

inline testing::AssertionResult succeeded(EGLBoolean result) {
    const EGLint error = eglGetError();
    if (result && error == EGL_SUCCESS) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "result " << result << ", error 0x" << std::hex << error;
}
