// The sources of EGL images of desktop programs. A texture or renderbuffer gets a storage that views can share, if it
// has none; the image is a view, and so is every texture that is created from it.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/texture_contents.h"
#include "context/es_context.h"
#include "framebuffers/renderbuffer_images.h"

#include <EGL/egl.h>

#include <memory>
#include <new>

namespace {

constexpr GLenum textureTarget = 0x1006; // GL_TEXTURE_TARGET

// The object that an image's owner points to.
using Owner = std::shared_ptr<ShareGroup>;

bool canShare(const EsContext &context) {
    return context.host.carries(43, "GL_ARB_texture_view") && context.host.carries(45, "GL_ARB_direct_state_access");
}

bool isImmutable(GLenum target) {
    GLint value = 0;
    hostGl().getTexParameteriv(target, GL_TEXTURE_IMMUTABLE_FORMAT, &value);
    return value != 0;
}

// The location of an image on the host.
struct Place {
    GLuint texture;
    GLenum internal;
    GLuint level, layer;
    bool isMutable; // for the application
};

EGLint sourceError(GLenum target, GLuint texture) {
    if (texture == 0 || !hostGl().isTexture(texture)) return EGL_BAD_PARAMETER;
    GLint itsTarget = 0;
    hostGl().getTextureParameteriv(texture, textureTarget, &itsTarget);
    return static_cast<GLenum>(itsTarget) == target ? EGL_SUCCESS : EGL_BAD_PARAMETER;
}

EGLint findTexture(EsContext &context, const zvImageSource &source, Place &place) {
    SharedTextures &textures = context.shared->textures;
    const GLuint texture = textures.names.find(source.name);
    const GLenum target = source.target == EGL_GL_TEXTURE_2D ? GL_TEXTURE_2D : GL_TEXTURE_CUBE_MAP;
    if (const EGLint error = sourceError(target, texture); error != EGL_SUCCESS) return error;
    if (textures.images.isTaken(texture)) return EGL_BAD_ACCESS;
    const BoundTexture bound(target, texture);
    const auto shape = boundTextureShape(target);
    if (!shape) return EGL_BAD_PARAMETER;
    if (source.level >= shape->levels) return EGL_BAD_MATCH;
    // The host does not support views of ES's own compressed formats.
    if (shape->internal == GL_NONE) return EGL_BAD_MATCH;
    const auto sibling = textures.images.siblings.find(texture);
    place = {.texture = texture,
             .internal = shape->internal,
             .level = static_cast<GLuint>(source.level),
             .layer = target == GL_TEXTURE_CUBE_MAP ? source.target - EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X : 0,
             .isMutable = sibling ? sibling->isMutable : !isImmutable(target)};
    if (isImmutable(target)) return EGL_SUCCESS;
    GLint internal = GL_NONE;
    hostGl().getTexLevelParameteriv(target == GL_TEXTURE_2D ? target : GLenum(GL_TEXTURE_CUBE_MAP_POSITIVE_X), 0,
                                    GL_TEXTURE_INTERNAL_FORMAT, &internal);
    makeShareable(*shape);
    // For the application the format remains unsized.
    if (static_cast<GLenum>(internal) != shape->internal && !textures.swizzles.find(texture)) {
        textures.swizzles.set(texture, {.internal = static_cast<GLenum>(internal)});
    }
    return EGL_SUCCESS;
}

EGLint findRenderbuffer(EsContext &context, const zvImageSource &source, Place &place) {
    const HostGl &gl = hostGl();
    ShareGroup &shared = *context.shared;
    const GLuint renderbuffer = shared.renderbuffers.find(source.name);
    if (renderbuffer == 0 || !gl.isRenderbuffer(renderbuffer)) return EGL_BAD_PARAMETER;
    auto texture = shared.renderbufferImages.textures.find(renderbuffer);
    if (texture && shared.textures.images.isTaken(*texture)) return EGL_BAD_ACCESS;
    const auto ask = [&](GLenum pname) {
        GLint value = 0;
        if (!askStandIn(context, renderbuffer, pname, &value)) {
            gl.getNamedRenderbufferParameteriv(renderbuffer, pname, &value);
        }
        return value;
    };
    const GLint width = ask(GL_RENDERBUFFER_WIDTH), height = ask(GL_RENDERBUFFER_HEIGHT);
    if (width == 0 || height == 0 || ask(GL_RENDERBUFFER_SAMPLES) > 0) return EGL_BAD_PARAMETER;
    const auto internal = static_cast<GLenum>(ask(GL_RENDERBUFFER_INTERNAL_FORMAT));
    if (!texture) {
        texture = shared.textures.names.generateHidden(gl.genTextures);
        const BoundTexture bound(GL_TEXTURE_2D, *texture);
        gl.texStorage2D(GL_TEXTURE_2D, 1, internal, width, height);
        gl.copyImageSubData(renderbuffer, GL_RENDERBUFFER, 0, 0, 0, 0, *texture, GL_TEXTURE_2D, 0, 0, 0, 0, width,
                            height, 1);
        standFor(context, renderbuffer, *texture);
    }
    place = {.texture = *texture, .internal = internal, .level = 0, .layer = 0, .isMutable = true};
    return EGL_SUCCESS;
}

void makeView(EsContext &context, const Place &place, zvImage &image) {
    SharedTextures &textures = context.shared->textures;
    textures.images.begin(image.number);
    image.owner = new Owner(context.shared.group());
    image.hostTexture = textures.names.generateHidden(hostGl().genTextures);
    image.hostFormat = place.internal;
    hostGl().textureView(image.hostTexture, GL_TEXTURE_2D, place.texture, place.internal, place.level, 1, place.layer,
                         1);
    const TextureSwizzle known = textures.swizzles.find(place.texture).value_or(TextureSwizzle{});
    image.format = known.internal == GL_NONE ? place.internal : known.internal;
    std::copy(known.ofFormat.begin(), known.ofFormat.end(), image.swizzle);
    textures.images.siblings.set(place.texture, {image.number, place.isMutable});
}

} // namespace

int32_t zvMakeImage(zvEsContext esContext, const zvImageSource *source, zvImage *image) {
    if (!esContext || !source || !image) return EGL_BAD_PARAMETER;
    EsContext &context = *static_cast<EsContext *>(esContext);
    if (const GLenum error = hostGl().getError(); error != GL_NO_ERROR) context.raise(error);
    try {
        if (!canShare(context)) {
            // A whole texture can still be shared: both names then refer to one object.
            const GLuint texture = context.shared->textures.names.find(source->name);
            if (source->target != EGL_GL_TEXTURE_2D || source->level != 0) return EGL_BAD_MATCH;
            *image = {};
            image->hostTexture = texture;
            return texture ? EGL_SUCCESS : EGL_BAD_PARAMETER;
        }
        deleteEndedImages(context.shared->textures);
        Place place = {};
        const EGLint error = source->target == EGL_GL_RENDERBUFFER ? findRenderbuffer(context, *source, place)
                                                                   : findTexture(context, *source, place);
        if (error != EGL_SUCCESS) return error;
        *image = {};
        image->number = source->number;
        makeView(context, place, *image);
    } catch (const std::bad_alloc &) {
        return EGL_BAD_ALLOC;
    }
    if (hostGl().getError() == GL_NO_ERROR) return EGL_SUCCESS;
    zvDropImage(image);
    return EGL_BAD_ALLOC;
}

void zvDropImage(const zvImage *image) {
    const std::unique_ptr<Owner> owner(static_cast<Owner *>(image->owner));
    SharedTextures &textures = (*owner)->textures;
    textures.images.end(image->number, image->hostTexture);
    const EsContext *const current = EsContext::current();
    if (current && current->shared.group() == *owner) deleteEndedImages(textures);
}
