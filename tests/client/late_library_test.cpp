// An application that opens the library late, so that its exit handlers run after the library's.
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
    library = dlopen(path, RTLD_NOW | RTLD_GLOBAL); // global, since back ends call it
    display = ENTRY(eglGetDisplay)(EGL_DEFAULT_DISPLAY);
    return ENTRY(eglInitialize)(display, nullptr, nullptr);
}

// Never returns and keeps its objects: the process ends meanwhile.
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

// Freed displays and an unloaded host library made one process in eighteen end by a signal.
TEST(LateLibrary, ProcessEndsWhileThreadsAreInsideEntries) {
    const Variable backEnds("KZRTRACE_LIB_PATH", STAGED_BACK_ENDS);
    const auto workAndExit = [](int rounds) {
        if (!open(STAGED_EGL)) _exit(3);
        EGLConfig config = nullptr;
        EGLint count = 0;
        ENTRY(eglGetConfigs)(display, &config, 1, &count);
        // Keeps the back end loaded, since loading a library while the process ends would run its constructors again.
        ENTRY(eglCreateContext)(display, config, EGL_NO_CONTEXT, nullptr);
        std::atomic<int> done = 0;
        for (int thread = 0; thread < 4; ++thread)
            std::thread(workForEver, config, std::ref(done)).detach();
        while (done < rounds)
            std::this_thread::yield();
        exit(0);
    };
    for (int run = 0; run < 12; ++run)
        ASSERT_EXIT(workAndExit(run % 10), testing::ExitedWithCode(0), "") << "run " << run;
}

TEST(LateLibrary, LooksBesideItselfThoughItWasFoundByARelativePath) {
    const auto openAndLook = [] {
        const std::filesystem::path path = STAGED_EGL;
        std::filesystem::current_path(path.parent_path());
        library = dlopen(("./" + path.filename().string()).c_str(), RTLD_NOW);
        std::filesystem::current_path("/");
        ENTRY(eglGetDisplay)(EGL_DEFAULT_DISPLAY);
        _exit(fileText("/proc/self/maps").find(path.parent_path() / "libGL.so") != std::string::npos ? 0 : 1);
    };
    EXPECT_EXIT(openAndLook(), testing::ExitedWithCode(0), "");
}
