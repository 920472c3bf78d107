// The device's texture size limits, where they are lower than the host's.
#pragma once

#include "es_gl.h"

class EsContext;

struct ImageSize {
    GLsizei width;
    GLsizei height;
    GLsizei depth = 1; // or layers
};

// The host rejects invalid targets and levels.
[[nodiscard]] bool isTooLarge(const EsContext &context, GLenum target, GLint level, const ImageSize &size);
