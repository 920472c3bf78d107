// The versions that contexts get on hosts with different capabilities.
#include "egl/fixture.h"

#include <tuple>

#include "fakes/every_extension.h"
#include "host/platform/recording/control.h"

namespace {

class HostVersions : public EntryTest {
protected:
    EGLContext create(EGLint major, EGLint minor = 0, EGLContext share = EGL_NO_CONTEXT) {
        return EntryTest::create({EGL_CONTEXT_CLIENT_VERSION, major, EGL_CONTEXT_MINOR_VERSION_KHR, minor}, config(),
                                 share);
    }

    // Creates such a context and checks the record that the back end receives.
    void expectAttribs(EGLint major, EGLint minor, EGLint esMajor, EGLint esMinor, int isStrict, const char *reason) {
        const EGLContext context = create(major, minor);
        const EGLSurface surface = window();
        EXPECT_SUCCEEDS(eglMakeCurrent(initialised(), surface, surface, context));
        const ContextAttribs &told = backEnd().createdWith;
        EXPECT_EQ(std::tuple(told.requestedMajor, told.esMajor, told.esMinor, told.strictContextMode),
                  std::tuple(major, esMajor, esMinor, isStrict))
            << reason;
    }

    // Runs in a process of its own, since the host is probed once.
    template <typename Action>
    void onHost(const char *version, const char *extensions, Action action, const char *errors = "") {
        const auto act = [&] {
            hostGl().version = version;
            hostGl().extensions = extensions;
            action();
            exit(HasFailure());
        };
        EXPECT_EXIT(act(), testing::ExitedWithCode(0), errors) << version;
    }
};

constexpr const char *strict = "<key>strict_context_mode</key><true/>";

} // namespace

TEST_F(HostVersions, MinorVersionIsRaisedAsFarAsTheHostGoes) {
    const std::string noBaseVertex = everyExtensionBut({"GL_ARB_draw_elements_base_vertex"});
    const std::tuple<const char *, const char *, EGLint, EGLint, EGLint, EGLint, const char *> rows[] = {
#include "egl/data/raised_versions.def"
    };
    for (const auto &[version, extensions, major, minor, esMajor, esMinor, reason] : rows) {
        onHost(version, extensions, [&] { expectAttribs(major, minor, esMajor, esMinor, 0, reason); });
    }
    hostGl().version = "4.6";
    hostGl().extensions = everyExtension;
    recordingFailNext("createContext");
    static_cast<void>(config());
    EXPECT_NE(create(1), EGL_NO_CONTEXT);
    takeLog();
    recordingFailNext("createContext");
    EXPECT_NE(create(3), EGL_NO_CONTEXT) << "without a probe";
    EXPECT_THAT(takeLines("createContext"), SizeIs(2)) << "the probe that fails again, and the context";
    expectAttribs(3, 0, 3, 2, 0, "the first look that succeeds counts for good");
    expectAttribs(3, 0, 3, 2, 0, "and asks nothing more");
    EXPECT_THAT(takeLines("createContext"), SizeIs(3));
}

TEST_F(HostVersions, StrictModeTakesTheVersionThatTheHostCarriesOrRefuses) {
    prefer(strict);
    onHost("4.6", everyExtension, [&] { expectAttribs(3, 1, 3, 2, 1, "the raised version is the tested one"); });
    onHost("4.6", everyExtension, [&] {
        for (int probe = 0; probe < 2; ++probe)
            recordingFailNext("createContext");
        EXPECT_FAILS(EGL_BAD_ALLOC, create(1));
    });
    onHost("4.0", "", [&] {
        expectAttribs(2, 0, 2, 0, 1, "back to what was asked for");
        const std::string output = outputOf([&] {
            EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API));
            EXPECT_FAILS(EGL_BAD_PARAMETER, create(3)); // the pending error stays
        });
        EXPECT_EQ(output, golden("egl/data/strict_warning.txt"));
    });
    onHost(
        "3.3", "", [&] { EXPECT_FAILS(EGL_BAD_ALLOC, create(2)); },
        "The host lacks .* for OpenGL ES 2.0\nSystem Report");
}

TEST_F(HostVersions, ReportSpeaksOnceForTheHostAtLoadAndOfNoUnknownConfig) {
    hostGl().version = "3.3";
    hostGl().extensions = "";
    static_cast<void>(config());
    const auto unknown = reinterpret_cast<EGLConfig>(55);
    EXPECT_EQ(errorsOf([&] { EXPECT_FAILS(EGL_BAD_CONFIG, eglCreateContext(m_display, unknown, nullptr, nullptr)); }),
              "");
    const std::string report = errorsOf([&] {
        EXPECT_FAILS(EGL_BAD_CONTEXT, create(2, 0, reinterpret_cast<EGLContext>(99)));
        EXPECT_FAILS(EGL_BAD_CONFIG, create(4));
    });
    EXPECT_THAT(report, StartsWith("System Report:\nOpenGL Version: 3.3\n\nOpenGL ES base support: no\n"));
    EXPECT_THAT(report, EndsWith("\n\n\n")) << "an empty line behind the text";
    EXPECT_EQ(report.rfind("System Report:"), 0u) << "one for all failures";
}

TEST_F(HostVersions, LoadWithoutAProbeLeavesTheReportEmpty) {
    recordingFailNext("createContext");
    EXPECT_EQ(errorsOf([&] { EXPECT_EQ(create(4), EGL_NO_CONTEXT); }), golden("egl/data/report_without_probe.txt"));
}
