/* Requests a context of OpenGL ES 3 that the host does not support, and continues without it. */
#include <EGL/egl.h>

#include <stdio.h>
#include <unistd.h>

int main(void) {
    static const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 3, EGL_NONE};
    EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EGLConfig config;
    EGLint count = 0;
    if (!eglInitialize(display, NULL, NULL) || !eglChooseConfig(display, NULL, &config, 1, &count) || count == 0) return 1;
    if (eglCreateContext(display, config, EGL_NO_CONTEXT, version) != EGL_NO_CONTEXT) return 2;
    puts("refused");
    fflush(stdout);
    return pause();
}
