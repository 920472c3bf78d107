// Attachments whose object gets another one of the host's.
#pragma once

#include "es_gl.h"

class EsContext;

struct HostImage {
    GLenum kind; // GL_TEXTURE or GL_RENDERBUFFER
    GLuint name; // the host's
};

// Every framebuffer of the context that has the one attached gets the other, at the same level and face. A texture is
// one of two dimensions or a cube map.
void swapAttached(EsContext &context, const HostImage &from, const HostImage &to);
