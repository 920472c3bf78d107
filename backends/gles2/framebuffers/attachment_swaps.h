// Replaces attached host objects by others.
#pragma once

#include "es_gl.h"

class EsContext;

struct HostImage {
    GLenum kind; // GL_TEXTURE or GL_RENDERBUFFER
    GLuint name; // the host's
};

// Every framebuffer of the context with the one attached gets the other, at the same level and face. A texture is
// a two-dimensional texture or a cube map.
void swapAttached(EsContext &context, const HostImage &from, const HostImage &to);
