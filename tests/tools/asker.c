/* Makes the EGL calls that its arguments name, and continues after failures:
     choose[=ATTRIBUTE:VALUE]  eglChooseConfig for ES 2; the first config is used from then on
     context=MAJOR.MINOR       eglCreateContext, and eglMakeCurrent without surfaces on success
     window=NUMBER             eglCreateWindowSurface of a window of that number
     api                       eglBindAPI for desktop OpenGL
     die                       raises a fatal signal */
#include <EGL/egl.h>

#include <signal.h>
#include <stdio.h>
#include <string.h>

static EGLDisplay display;
static EGLConfig config;

static void choose(const char *word) {
    EGLint list[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT, EGL_NONE, 0, EGL_NONE}, count = 0;
    EGLConfig found = NULL;
    sscanf(word, "choose=%i:%i", &list[2], &list[3]);
    if (eglChooseConfig(display, list, &found, 1, &count) && count > 0) config = found;
}

static void context(const char *word) {
    EGLint list[] = {EGL_CONTEXT_MAJOR_VERSION, 2, EGL_CONTEXT_MINOR_VERSION, 0, EGL_NONE};
    sscanf(word, "context=%d.%d", &list[1], &list[3]);
    EGLContext made = eglCreateContext(display, config, EGL_NO_CONTEXT, list);
    if (made) eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, made);
}

int main(int count, char **words) {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    eglInitialize(display, NULL, NULL);
    for (int i = 1; i < count; ++i) {
        unsigned window = 0;
        if (strncmp(words[i], "choose", 6) == 0) choose(words[i]);
        if (strncmp(words[i], "context", 7) == 0) context(words[i]);
        if (sscanf(words[i], "window=%u", &window) == 1) eglCreateWindowSurface(display, config, window, NULL);
        if (strcmp(words[i], "api") == 0) eglBindAPI(EGL_OPENGL_API);
        if (strcmp(words[i], "die") == 0) raise(SIGKILL);
    }
    return 0;
}
