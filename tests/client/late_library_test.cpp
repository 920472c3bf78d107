// An application that opens the library late: its exit handlers run after the library's own.
#include <EGL/egl.h>
#include <gtest/gtest.h>

#include <atomic>
#include <dlfcn.h>
#include <filesystem>
#include <thread>
#include <unistd.h>

#include "support/environment.h"
#include "support/file_text.h"

namespace {

#define ENTRY(name) reinterpret_cast<decltype(&name)>(dlsym(library, #name))

void *library;
EGLDisplay display;

bool open(const char *path) {
    library = dlopen(path, RTLD_NOW | RTLD_GLOBAL); // back ends call it
    display = ENTRY(eglGetDisplay)(EGL_DEFAULT_DISPLAY);
    return ENTRY(eglInitialize)(display, nullptr, nullptr);
}

// Never returns. What it works on stays: the process ends meanwhile.
void workForEver(EGLConfig config, std::atomic<int> &rounds) {
    const EGLint size[] = {EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_NONE};
    for (;; ++rounds) {
        const EGLContext context = ENTRY(eglCreateContext)(display, config, EGL_NO_CONTEXT, nullptr);
        const EGLSurface surface = ENTRY(eglCreatePbufferSurface)(display, config, size);
        ENTRY(eglMakeCurrent)(display, surface, surface, context);
        ENTRY(eglSwapBuffers)(display, surface);
        ENTRY(eglMakeCurrent)(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
        ENTRY(eglDestroySurface)(display, surface);
        ENTRY(eglDestroyContext)(display, context);
    }
}

} // namespace

TEST(LateLibrary, ExitHandlersFindEverythingAsItWas) {
    const auto openAndExit = [] {
        atexit([] { _exit(ENTRY(eglTerminate)(display) ? 0 : 1); });
        exit(open(STAGED_EGL) ? 2 : 3);
    };
    EXPECT_EXIT(openAndExit(), testing::ExitedWithCode(0), "");
}

// Freed displays and an unloaded host library ended one process in eighteen by a signal.
TEST(LateLibrary, ProcessEndsWhileThreadsAreInsideEntries) {
    const Variable backEnds("KZRTRACE_LIB_PATH", STAGED_BACK_ENDS);
    const auto workAndExit = [](int rounds) {
        if (!open(STAGED_EGL)) _exit(3);
        EGLConfig config = nullptr;
        EGLint count = 0;
        ENTRY(eglGetConfigs)(display, &config, 1, &count);
        std::atomic<int> done = 0;
        for (int thread = 0; thread < 4; ++thread)
            std::thread(workForEver, config, std::ref(done)).detach();
        while (done < rounds)
            std::this_thread::yield();
        exit(0);
    };
    for (int run = 0; run < 40; ++run)
        ASSERT_EXIT(workAndExit(run % 10), testing::ExitedWithCode(0), "") << "run " << run;
}

TEST(LateLibrary, LooksBesideItselfThoughItWasFoundByARelativePath) {
    const std::filesystem::path path = STAGED_EGL;
    std::filesystem::current_path(path.parent_path());
    library = dlopen(("./" + path.filename().string()).c_str(), RTLD_NOW);
    std::filesystem::current_path("/");
    EXPECT_NE(ENTRY(eglGetDisplay)(EGL_DEFAULT_DISPLAY), EGL_NO_DISPLAY);
    EXPECT_NE(fileText("/proc/self/maps").find(path.parent_path() / "libGL.so"), std::string::npos);
}
