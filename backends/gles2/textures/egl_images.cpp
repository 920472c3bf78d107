// EGL images as the storage of textures and renderbuffers. A desktop program's image has a storage of its own, which a
// view of the host shares; any other is a record of the texture that it was created from, and the two names then map to
// the same host object.
#include "common/desktop_clients.h"
#include "common/per_back_end/bound_textures.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/renderbuffer_images.h"
#include "textures/texture_replacement.h"
#include "textures/texture_targets.h"

#include <algorithm>

namespace {

// The record behind the handle, as libEGL.so.1 lays it out.
struct EglImage {
    uint32_t target;
    uint64_t buffer; // the texture's name
};
constexpr uint32_t eglGlTexture2D = 0x30B1;

// Null for a misaligned handle. Any other handle is assumed to be an image.
const EglImage *imageOf(const void *handle) {
    const bool isAligned = reinterpret_cast<uintptr_t>(handle) % alignof(EglImage) == 0;
    return isAligned ? static_cast<const EglImage *>(handle) : nullptr;
}

// The error of ES for the handle, or GL_NO_ERROR. An image of a device's program has only a source, which may be 0.
GLenum findImage(const EsContext &context, const void *handle, zvImage &image) {
    if (servesDesktopClients()) {
        const int found = zvFindImage(handle, &image);
        return found == 0 ? GL_INVALID_VALUE : found < 0 ? GL_INVALID_OPERATION : GL_NO_ERROR;
    }
    const EglImage *const record = imageOf(handle);
    if (!record) return GL_INVALID_VALUE;
    if (record->target == eglGlTexture2D) {
        image.hostTexture = context.shared->textures.names.find(static_cast<GLuint>(record->buffer));
    }
    return GL_NO_ERROR;
}

GLuint makeView(EsContext &context, const zvImage &image) {
    const GLuint view = context.shared->textures.names.generateHidden(hostGl().genTextures);
    hostGl().textureView(view, GL_TEXTURE_2D, image.hostTexture, image.hostFormat, 0, 1, 0, 1);
    return view;
}

// isMutable: for the application.
void shareStorage(EsContext &context, const zvImage &image, bool isMutable) {
    SharedTextures &textures = context.shared->textures;
    const GLuint view = makeView(context, image);
    replaceBoundTexture(context, GL_TEXTURE_2D, view);
    HostTextureFormat format = {image.hostFormat, image.hostFormat, GL_UNSIGNED_BYTE, {}};
    std::copy_n(image.swizzle, format.swizzle.size(), format.swizzle.begin());
    setFormatSwizzle(context, GL_TEXTURE_2D, image.format, format);
    textures.images.siblings.set(view, {image.number, isMutable});
}

// Whether the application has specified an immutable storage for the texture of this name on the host.
bool isImmutable(const EsContext &context, GLuint texture) {
    const auto sibling = context.shared->textures.images.siblings.find(texture);
    if (sibling) return !sibling->isMutable;
    GLint value = 0;
    hostGl().getTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_IMMUTABLE_FORMAT, &value);
    return value != 0;
}

void shareObject(EsContext &context, GLuint source, GLuint old, GLuint name) {
    NameTable &names = context.shared->textures.names;
    if (source == old) return;
    const bool isUnused = names.remove(name) != 0;
    names.alias(name, source);
    hostGl().bindTexture(GL_TEXTURE_2D, source);
    context.textures.lastNames[source] = name;
    if (!isUnused) return;
    context.shared->textures.swizzles.remove(old);
    hostGl().deleteTextures(1, &old);
}

} // namespace

namespace overrides {

void GL_APIENTRY imageTargetTexture2D(GLenum target, GLeglImageOES handle) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (hostTarget(target) != GL_TEXTURE_2D) return context->raise(GL_INVALID_ENUM);
    zvImage image = {};
    if (const GLenum error = findImage(*context, handle, image); error != GL_NO_ERROR) return context->raise(error);
    const GLuint old = textureBoundTo(GL_TEXTURE_BINDING_2D);
    const auto last = context->textures.lastNames.find(old);
    const bool hasLast = last != context->textures.lastNames.end();
    const GLuint name = hasLast ? last->second : context->shared->textures.names.nameOf(old);
    if (image.hostTexture == 0 || name == 0) return context->raise(GL_INVALID_OPERATION);
    if (!image.owner) return shareObject(*context, image.hostTexture, old, name);
    if (isImmutable(*context, old)) return context->raise(GL_INVALID_OPERATION);
    shareStorage(*context, image, true);
}

void GL_APIENTRY imageTargetTexStorage(GLenum target, GLeglImageOES handle, const GLint *attributes) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    zvImage image = {};
    if (const GLenum error = findImage(*context, handle, image); error != GL_NO_ERROR) return context->raise(error);
    if (attributes && *attributes != GL_NONE) return context->raise(GL_INVALID_VALUE);
    const GLuint bound = textureBoundTo(GL_TEXTURE_BINDING_2D);
    const bool isTaken = image.owner && hostTarget(target) == GL_TEXTURE_2D && bound != 0;
    if (!isTaken || isImmutable(*context, bound)) return context->raise(GL_INVALID_OPERATION);
    shareStorage(*context, image, false);
}

void GL_APIENTRY imageTargetRenderbufferStorage(GLenum target, GLeglImageOES handle) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (target != GL_RENDERBUFFER) return context->raise(GL_INVALID_ENUM);
    zvImage image = {};
    if (const GLenum error = findImage(*context, handle, image); error != GL_NO_ERROR) return context->raise(error);
    GLint bound = 0;
    hostGl().getIntegerv(GL_RENDERBUFFER_BINDING, &bound);
    // Without a view, a host texture cannot be the storage of a renderbuffer.
    if (!image.owner || bound == 0) return context->raise(GL_INVALID_OPERATION);
    const GLuint view = makeView(*context, image);
    context->shared->textures.images.siblings.set(view, {image.number, true});
    standFor(*context, static_cast<GLuint>(bound), view);
}

} // namespace overrides
