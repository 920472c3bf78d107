// An application that opens the library late: its exit handlers run when the library's statics have gone.
#include <EGL/egl.h>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <unistd.h>

#define ENTRY(name) reinterpret_cast<decltype(&name)>(dlsym(library, #name))

TEST(LateLibrary, ExitHandlersFindNothingLoaded) {
    static void *library;
    static EGLDisplay display;
    const auto openAndExit = [] {
        atexit([] { _exit(!ENTRY(eglTerminate)(display) && ENTRY(eglGetError)() == EGL_NOT_INITIALIZED ? 0 : 1); });
        library = dlopen(STAGED_EGL, RTLD_NOW);
        display = ENTRY(eglGetDisplay)(EGL_DEFAULT_DISPLAY);
        exit(ENTRY(eglInitialize)(display, nullptr, nullptr) ? 2 : 3);
    };
    EXPECT_EXIT(openAndExit(), testing::ExitedWithCode(0), "");
}
