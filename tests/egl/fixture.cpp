#include "egl/fixture.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "host/platform/recording/control.h"

namespace {

template <typename Script>
Script &scriptOf(const std::string &path, const char *name) {
    void *library = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library) throw std::runtime_error(dlerror());
    return *reinterpret_cast<Script *(*)()>(dlsym(library, name))();
}

const std::string stage = STAGE_DIRECTORY;
std::string backEndDirectory;

} // namespace

EntryTest::EntryTest() {
    useBackEnds("back_ends");
    recordingSetWindow(77, 640, 480, "seventy-seven");
}

std::string EntryTest::takeLog() {
    std::string log(1 << 20, '\0');
    log.resize(recordingTakeLog(log.data(), log.size()));
    return log;
}

std::vector<std::string> EntryTest::takeLines(const std::string &containing) {
    std::istringstream log(takeLog());
    std::vector<std::string> lines;
    for (std::string line; std::getline(log, line);) {
        if (line.find(containing) != std::string::npos) lines.push_back(line);
    }
    return lines;
}

void EntryTest::prefer(const std::string &pairs) {
    const std::string directory = std::string(getenv("HOME")) + "/.kzrconfig/Tarnwell Graphics";
    std::filesystem::create_directories(directory);
    std::ofstream(directory + "/com.tarnlight.Zelvane.plist")
        << "<plist version=\"1.0\"><dict><key>Zelvane 6.31</key><dict>" << pairs << "</dict></dict></plist>";
}

void EntryTest::useBackEnds(const char *directory) {
    backEndDirectory = stage + "/" + directory;
    setenv("KZRTRACE_LIB_PATH", backEndDirectory.c_str(), 1);
}

FakeBackEnd &EntryTest::backEnd() {
    return scriptOf<FakeBackEnd>(backEndDirectory + "/libGLESv2.so.2", "fakeBackEnd");
}

FakeGl &EntryTest::hostGl() {
    return scriptOf<FakeGl>(stage + "/libGL.so.1", "fakeGl");
}

EGLDisplay EntryTest::initialised() {
    if (m_display == EGL_NO_DISPLAY) {
        m_display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
        EXPECT_TRUE(eglInitialize(m_display, nullptr, nullptr));
    }
    return m_display;
}

EGLConfig EntryTest::config() {
    initialised();
    return reinterpret_cast<EGLConfig>(1);
}

EGLContext EntryTest::create(std::vector<EGLint> attributes, EGLConfig from, EGLContext share) {
    attributes.push_back(EGL_NONE);
    return eglCreateContext(initialised(), from, share, attributes.data());
}

EGLContext EntryTest::context(EGLint major, EGLContext share) {
    const EGLContext made = create({EGL_CONTEXT_CLIENT_VERSION, major}, config(), share);
    EXPECT_NE(made, EGL_NO_CONTEXT);
    return made;
}

EGLSurface EntryTest::window(EGLNativeWindowType id) {
    const EGLSurface made = eglCreateWindowSurface(initialised(), config(), id, nullptr);
    EXPECT_NE(made, EGL_NO_SURFACE);
    return made;
}

EGLSurface EntryTest::pbuffer(EGLint width, EGLint height) {
    const EGLint attributes[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
    const EGLSurface made = eglCreatePbufferSurface(initialised(), config(), attributes);
    EXPECT_NE(made, EGL_NO_SURFACE);
    return made;
}

EGLContext EntryTest::current(EGLint major) {
    const EGLContext made = context(major);
    const EGLSurface surface = window();
    EXPECT_TRUE(eglMakeCurrent(initialised(), surface, surface, made));
    return made;
}

EGLint EntryTest::querySurface(EGLSurface surface, EGLint attribute) {
    EGLint value = -77;
    EXPECT_SUCCEEDS(eglQuerySurface(initialised(), surface, attribute, &value));
    return value;
}
