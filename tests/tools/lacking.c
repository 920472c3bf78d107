/* Uses one feature of each kind that a device of OpenGL ES 2 lacks, queries the error of an invalid call, shows a
   frame, and raises a fatal signal if it has an argument. */
#include <EGL/egl.h>
#include <GLES3/gl32.h>
#include <GLES2/gl2ext.h>

#include <signal.h>
#include <stdio.h>
#include <stdlib.h>

int main(int count, char **words) {
    (void)words;
    const EGLint wanted[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT, EGL_SURFACE_TYPE, EGL_PBUFFER_BIT, EGL_NONE};
    const EGLint size[] = {EGL_WIDTH, 16, EGL_HEIGHT, 16, EGL_NONE}, version[] = {EGL_CONTEXT_MAJOR_VERSION, 2, EGL_NONE};
    EGLDisplay display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    EGLConfig config = NULL;
    EGLint found = 0;
    if (!eglInitialize(display, NULL, NULL) || !eglChooseConfig(display, wanted, &config, 1, &found)) return 1;
    EGLSurface surface = eglCreatePbufferSurface(display, config, size);
    EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, version);
    if (!eglMakeCurrent(display, surface, surface, context)) return 2;

    GLuint name = 0;
    PFNGLGENQUERIESEXTPROC genQueries = (PFNGLGENQUERIESEXTPROC)eglGetProcAddress("glGenQueriesEXT");
    if (genQueries) genQueries(1, &name); /* of an extension */
    glGenVertexArrays(1, &name);          /* of OpenGL ES 3, and linked */
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_3D, name); /* a target */
    glBindTexture(GL_TEXTURE_2D, name);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RG, 1, 1, 0, GL_RG, GL_UNSIGNED_BYTE, NULL); /* a format */
    glCompressedTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 4, 4, 0, 8, NULL);           /* a compressed one */
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1 << 20, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, NULL); /* limits */
    glActiveTexture(GL_TEXTURE0 + 999);
    glVertexAttribPointer(999, 4, GL_FLOAT, GL_FALSE, 0, NULL);
    while (glGetError() != GL_NO_ERROR) {
    }
    glClearDepthf(0.5f);
    glUniform4f(0, 1.5f, 2, 3, 4); /* without a program */
    const GLenum first = glGetError(), second = glGetError();
    printf("%x %x\n", first, second);
    fflush(stdout);
    eglSwapBuffers(display, surface);
    if (count > 1) raise(SIGKILL);
    return 0;
}
