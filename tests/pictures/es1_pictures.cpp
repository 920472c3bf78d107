// Draws fixed-function scenes and writes the pixels of each to a file. Usage: es1_pictures DIRECTORY
#include "pictures/scenes.h"

#include <EGL/egl.h>

#include <cstdio>
#include <fstream>
#include <string>
#include <vector>

Gl gl;

namespace {

struct Scene {
    const char *name;
    void (*draw)();
};
constexpr Scene allScenes[] = {
#define SCENE(name) {#name, scenes::name},
#include "pictures/scenes.def"
#undef SCENE
};

EGLDisplay display = EGL_NO_DISPLAY;
EGLConfig config = nullptr;
EGLSurface surface = EGL_NO_SURFACE;

bool openDisplay() {
    display = eglGetDisplay(EGL_DEFAULT_DISPLAY);
    const EGLint wanted[] = {EGL_RENDERABLE_TYPE,
                             EGL_OPENGL_ES_BIT,
                             EGL_SURFACE_TYPE,
                             EGL_PBUFFER_BIT,
                             EGL_RED_SIZE,
                             8,
                             EGL_ALPHA_SIZE,
                             8,
                             EGL_DEPTH_SIZE,
                             24,
                             EGL_STENCIL_SIZE,
                             8,
                             EGL_SAMPLES,
                             0,
                             EGL_NONE};
    const EGLint size[] = {EGL_WIDTH, pictureSize, EGL_HEIGHT, pictureSize, EGL_NONE};
    EGLint count = 0;
    if (!eglInitialize(display, nullptr, nullptr) || !eglChooseConfig(display, wanted, &config, 1, &count))
        return false;
    if (count > 0) surface = eglCreatePbufferSurface(display, config, size);
    return surface != EGL_NO_SURFACE;
}

void loadFunctions() {
#define FUNCTION(field, name) gl.field = reinterpret_cast<decltype(gl.field)>(eglGetProcAddress(#name));
#include "pictures/functions.def"
#undef FUNCTION
}

// A surface may be upside down, where edges cover other pixels.
void drawToImage() {
    GLuint framebuffer = 0, images[2] = {};
    gl.genFramebuffers(1, &framebuffer);
    gl.bindFramebuffer(GL_FRAMEBUFFER_OES, framebuffer);
    gl.genRenderbuffers(2, images);
    gl.bindRenderbuffer(GL_RENDERBUFFER_OES, images[0]);
    gl.renderbufferStorage(GL_RENDERBUFFER_OES, GL_RGBA8_OES, pictureSize, pictureSize);
    gl.framebufferRenderbuffer(GL_FRAMEBUFFER_OES, GL_COLOR_ATTACHMENT0_OES, GL_RENDERBUFFER_OES, images[0]);
    gl.bindRenderbuffer(GL_RENDERBUFFER_OES, images[1]);
    gl.renderbufferStorage(GL_RENDERBUFFER_OES, GL_DEPTH24_STENCIL8_OES, pictureSize, pictureSize);
    for (const GLenum attachment : {GL_DEPTH_ATTACHMENT_OES, GL_STENCIL_ATTACHMENT_OES})
        gl.framebufferRenderbuffer(GL_FRAMEBUFFER_OES, attachment, GL_RENDERBUFFER_OES, images[1]);
}

bool drawOn(const Scene &scene, const std::string &directory) {
    const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 1, EGL_NONE};
    const EGLContext context = eglCreateContext(display, config, EGL_NO_CONTEXT, version);
    if (!eglMakeCurrent(display, surface, surface, context)) return false;
    if (!gl.clear) loadFunctions();
    drawToImage();
    gl.viewport(0, 0, pictureSize, pictureSize);
    gl.clearColor(0.1f, 0.1f, 0.2f, 1);
    gl.clear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT | GL_STENCIL_BUFFER_BIT);
    scene.draw();
    std::vector<char> pixels(size_t{pictureSize} * pictureSize * 4);
    gl.readPixels(0, 0, pictureSize, pictureSize, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    const GLenum error = gl.getError();
    if (error != GL_NO_ERROR) std::fprintf(stderr, "%s: error 0x%x\n", scene.name, error);
    std::ofstream(directory + "/" + scene.name + ".rgba").write(pixels.data(), std::ssize(pixels));
    eglMakeCurrent(display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    return eglDestroyContext(display, context) && error == GL_NO_ERROR;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 2) return 2;
    if (!openDisplay()) {
        std::fprintf(stderr, "no display with a fitting config: error 0x%x\n", eglGetError());
        return 77;
    }
    std::printf("%s\n", eglQueryString(display, EGL_VERSION));
    bool isGood = true;
    for (const Scene &scene : allScenes)
        isGood = drawOn(scene, argv[1]) && isGood;
    return isGood ? 0 : 1;
}
