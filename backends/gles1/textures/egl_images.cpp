// EGL images of desktop programs: a texture gets a storage that views can share, the image is a view, and so is every
// texture that is created from it.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "common/per_back_end/texture_contents.h"
#include "context/es_context.h"
#include "desktop_names.h"

#include <EGL/egl.h>

#include <algorithm>
#include <memory>

namespace {

// The object that an image's owner points to.
using Owner = std::shared_ptr<ShareGroup>;

void deleteEnded(ShareGroup &shared) {
    const std::vector<GLuint> ended = shared.images.takeEnded();
    if (!ended.empty()) hostGl().deleteTextures(static_cast<GLsizei>(ended.size()), ended.data());
}

GLuint makeView(GLuint texture, GLenum internal, GLuint level, GLuint layer) {
    GLuint view = 0;
    hostGl().genTextures(1, &view);
    hostGl().textureView(view, GL_TEXTURE_2D, texture, internal, level, 1, layer, 1);
    return view;
}

EGLint makeImage(EsContext &context, const zvImageSource &source, zvImage &image) {
    const HostGl &gl = hostGl();
    ShareGroup &shared = *context.shared;
    const GLuint texture = shared.standIns.hostName(source.name);
    if (source.target == EGL_GL_RENDERBUFFER || !context.host.carries(43, "GL_ARB_texture_view")) return EGL_BAD_MATCH;
    if (!gl.isTexture(texture)) return EGL_BAD_PARAMETER;
    if (shared.images.isTaken(texture)) return EGL_BAD_ACCESS;
    const bool isFace = source.target != EGL_GL_TEXTURE_2D;
    const GLenum target = isFace ? GL_TEXTURE_CUBE_MAP_OES : GL_TEXTURE_2D;
    const BoundTexture bound(target, texture);
    // The host generates an error for a texture of another target.
    if (gl.getError() != GL_NO_ERROR) return EGL_BAD_PARAMETER;
    const auto shape = boundTextureShape(target);
    if (!shape) return EGL_BAD_PARAMETER;
    if (source.level >= shape->levels || shape->internal == 0) return EGL_BAD_MATCH;
    GLint isImmutable = 0;
    gl.getTexParameteriv(target, desktop::textureImmutableFormat, &isImmutable);
    if (!isImmutable) makeShareable(*shape);
    const auto sibling = shared.images.siblings.find(texture);
    image.number = source.number;
    image.hostFormat = image.format = shape->internal;
    image.hostTexture = makeView(texture, shape->internal, static_cast<GLuint>(source.level),
                                 isFace ? source.target - EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X : 0);
    constexpr int32_t plain[] = {0x1903, 0x1904, 0x1905, 0x1906}; // red to alpha
    std::copy_n(plain, 4, image.swizzle);
    image.owner = new Owner(context.shared.group());
    shared.images.begin(source.number);
    shared.images.siblings.set(texture, {source.number, sibling ? sibling->isMutable : !isImmutable});
    return EGL_SUCCESS;
}

} // namespace

int32_t zvMakeImage(zvEsContext esContext, const zvImageSource *source, zvImage *image) {
    if (!esContext || !source || !image) return EGL_BAD_PARAMETER;
    EsContext &context = *static_cast<EsContext *>(esContext);
    if (const GLenum error = hostGl().getError(); error != GL_NO_ERROR) context.raise(error);
    *image = {};
    EGLint error = EGL_BAD_ALLOC;
    try {
        deleteEnded(*context.shared);
        error = makeImage(context, *source, *image);
    } catch (const std::bad_alloc &) {
    }
    if (hostGl().getError() == GL_NO_ERROR || error != EGL_SUCCESS) return error;
    zvDropImage(image);
    return EGL_BAD_ALLOC;
}

void zvDropImage(const zvImage *image) {
    const std::unique_ptr<Owner> owner(static_cast<Owner *>(image->owner));
    (*owner)->images.end(image->number, image->hostTexture);
    const EsContext *const current = EsContext::current();
    if (current && current->shared.group() == *owner) deleteEnded(**owner);
}

namespace overrides {

void GL_APIENTRY imageTargetTexture2D(GLenum target, GLeglImageOES handle) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    if (target != GL_TEXTURE_2D) return context->raise(GL_INVALID_ENUM);
    zvImage image = {};
    const int found = zvFindImage(handle, &image);
    if (found == 0) return context->raise(GL_INVALID_VALUE);
    if (found < 0 || !image.owner || boundHostTexture(target) == 0) return context->raise(GL_INVALID_OPERATION);
    const GLuint view = makeView(image.hostTexture, image.hostFormat, 0, 0);
    replaceBoundTexture(*context, target, view);
    context->shared->images.siblings.set(view, {image.number, true});
}

// Images have textures as sources only, and a texture on the host cannot be the storage of a renderbuffer.
void GL_APIENTRY imageTargetRenderbufferStorage(GLenum target, GLeglImageOES) {
    raise(target == GL_RENDERBUFFER_OES ? GL_INVALID_OPERATION : GL_INVALID_ENUM);
}

} // namespace overrides
