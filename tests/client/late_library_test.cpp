// An application that opens the library late: its exit handlers run when the library's statics have gone.
#include <EGL/egl.h>
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <unistd.h>

namespace {

void *library = nullptr;
EGLDisplay display = EGL_NO_DISPLAY;

#define ENTRY(name) reinterpret_cast<decltype(&name)>(dlsym(library, #name))

void endLate() {
    const bool isRefused = !ENTRY(eglTerminate)(display) && ENTRY(eglGetError)() == EGL_NOT_INITIALIZED;
    _exit(isRefused ? 0 : 1);
}

void openAndExit() {
    atexit(endLate);
    library = dlopen(STAGED_EGL, RTLD_NOW);
    display = ENTRY(eglGetDisplay)(EGL_DEFAULT_DISPLAY);
    exit(ENTRY(eglInitialize)(display, nullptr, nullptr) ? 2 : 3);
}

} // namespace

TEST(LateLibrary, ExitHandlersFindNothingLoaded) {
    EXPECT_EXIT(openAndExit(), testing::ExitedWithCode(0), "");
}
