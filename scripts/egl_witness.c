/* Preloaded by try-programs into programs that link EGL and OpenGL ES. At the first swap it queries GL_RENDERER
   and GL_VERSION from the library whose functions the program itself calls, and prints both with that library's file. */
#define _GNU_SOURCE
#include <EGL/egl.h>
#include <GLES2/gl2.h>
#include <dlfcn.h>
#include <stdio.h>

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
