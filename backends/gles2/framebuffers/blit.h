// A copy between the bound framebuffers, with the parameters of glBlitFramebuffer.
#pragma once

#include "es_gl.h"

class EsContext;

struct Rectangle {
    GLint x0, y0, x1, y1;

    bool operator==(const Rectangle &) const = default;
};

struct Blit {
    Rectangle from;
    Rectangle to;
    GLbitfield mask;
    GLenum filter;
};

// Whether ES rejects a copy that the host accepts. Both framebuffers are complete.
[[nodiscard]] bool isRefused(const EsContext &context, const Blit &blit);
