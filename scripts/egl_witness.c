/* Preloaded by try-programs into programs that link EGL and OpenGL ES. At the first swap it asks GL_RENDERER
   and GL_VERSION of the library whose functions the program itself calls, and prints both with that library's file.
   With EGL_WITNESS_SAMPLES=N in the environment it also adds EGL_SAMPLES N to what the program asks of configs, so
   that two libraries draw with as many samples. */
#define _GNU_SOURCE
#include <EGL/egl.h>
#include <GLES2/gl2.h>
#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void testify(void) {
    const GLubyte *(*getString)(GLenum) = (const GLubyte *(*)(GLenum))dlsym(RTLD_DEFAULT, "glGetString");
    Dl_info library;
    if (!getString || !dladdr((void *)getString, &library)) return;
    printf("witness GL_RENDERER: %s\nwitness GL_VERSION: %s\nwitness library: %s\n", getString(GL_RENDERER),
           getString(GL_VERSION), library.dli_fname);
}

EGLBoolean eglSwapBuffers(EGLDisplay display, EGLSurface surface) {
    static int isDone = 0;
    EGLBoolean (*next)(EGLDisplay, EGLSurface) =
        (EGLBoolean(*)(EGLDisplay, EGLSurface))dlsym(RTLD_NEXT, "eglSwapBuffers");
    if (!isDone++) testify();
    return next(display, surface);
}

EGLBoolean eglChooseConfig(EGLDisplay display, const EGLint *asked, EGLConfig *configs, EGLint size, EGLint *count) {
    enum { most = 128 };
    EGLBoolean (*next)(EGLDisplay, const EGLint *, EGLConfig *, EGLint, EGLint *) =
        (EGLBoolean(*)(EGLDisplay, const EGLint *, EGLConfig *, EGLint, EGLint *))dlsym(RTLD_NEXT, "eglChooseConfig");
    const char *samples = getenv("EGL_WITNESS_SAMPLES");
    EGLint list[most], length = 0;
    if (!samples) return next(display, asked, configs, size, count);
    for (; asked && asked[length] != EGL_NONE && length < most - 3; length += 2)
        memcpy(list + length, asked + length, 2 * sizeof *list);
    list[length] = EGL_SAMPLES;
    list[length + 1] = atoi(samples);
    list[length + 2] = EGL_NONE;
    return next(display, list, configs, size, count);
}
