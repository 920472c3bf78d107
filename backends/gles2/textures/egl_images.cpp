// EGL images. One that was made of a texture becomes the storage of another by meaning the same object of the host.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_targets.h"

namespace {

// The record behind the handle, as libEGL.so.1 lays it out.
struct EglImage {
    uint32_t target;
    uint64_t buffer; // the texture's name
};
constexpr uint32_t eglGlTexture2D = 0x30B1;

// Null for what cannot be one. Beyond that an image is taken by its word, as every handle of its kind is.
const EglImage *imageOf(const void *handle) {
    const bool isAligned = reinterpret_cast<uintptr_t>(handle) % alignof(EglImage) == 0;
    return isAligned ? static_cast<const EglImage *>(handle) : nullptr;
}

// The host's name of the texture that the image was made of, or 0.
GLuint sourceTexture(const EsContext &context, const EglImage &image) {
    if (image.target != eglGlTexture2D) return 0;
    return context.shared->textures.names.find(static_cast<GLuint>(image.buffer));
}

} // namespace

namespace overrides {

void GL_APIENTRY imageTargetTexture2D(GLenum target, GLeglImageOES handle) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (hostTarget(target) != GL_TEXTURE_2D) return context->raise(GL_INVALID_ENUM);
    const EglImage *const image = imageOf(handle);
    if (!image) return context->raise(GL_INVALID_VALUE);
    const HostGl &gl = hostGl();
    NameTable &names = context->shared->textures.names;
    const GLuint source = sourceTexture(*context, *image);
    GLint bound = 0;
    gl.getIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    const auto old = static_cast<GLuint>(bound);
    const auto last = context->textures.lastNames.find(old);
    const GLuint name = last == context->textures.lastNames.end() ? names.nameOf(old) : last->second;
    if (source == 0 || name == 0) return context->raise(GL_INVALID_OPERATION);
    if (source == old) return;
    const bool isUnused = names.remove(name) != 0;
    names.alias(name, source);
    gl.bindTexture(GL_TEXTURE_2D, source);
    context->textures.lastNames[source] = name;
    if (!isUnused) return;
    context->shared->textures.swizzles.remove(old);
    gl.deleteTextures(1, &old);
}

// A texture of the host cannot be the storage of a renderbuffer.
void GL_APIENTRY imageTargetRenderbufferStorage(GLenum target, GLeglImageOES) {
    EsContext *const context = EsContext::current();
    if (context) context->raise(target == GL_RENDERBUFFER ? GL_INVALID_OPERATION : GL_INVALID_ENUM);
}

} // namespace overrides
