// The attachments of the bound framebuffers, by the application's names.
#pragma once

#include "es_gl.h"

#include <optional>

class EsContext;

struct AttachedImage {
    GLenum kind = GL_NONE; // GL_TEXTURE or GL_RENDERBUFFER; GL_NONE without one
    GLuint hostName = 0;
    GLint level = 0;
    GLint layer = 0; // or the face of a cube map
    bool isSrgb = false;
    // The fields below are unset for an object that was deleted since.
    GLenum internal = GL_NONE;
    GLenum hostInternal = GL_NONE;
    GLenum sized = GL_NONE; // internal, or a sized format if the application specified an unsized one
    GLint width = 0;
    GLint height = 0;
    GLint samples = 0;

    [[nodiscard]] bool isSameAs(const AttachedImage &other) const {
        return kind == other.kind && hostName == other.hostName && level == other.level && layer == other.layer;
    }
};

// target: GL_DRAW_FRAMEBUFFER or GL_READ_FRAMEBUFFER, with a framebuffer of the application's. Nothing if the host
// cannot query objects that are not bound.
[[nodiscard]] std::optional<AttachedImage> attachedImage(const EsContext &context, GLenum target, GLenum attachment);
