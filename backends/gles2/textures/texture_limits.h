// The sizes that a device takes, where it takes less than the host.
#pragma once

#include "es_gl.h"

class EsContext;

struct ImageSize {
    GLsizei width;
    GLsizei height;
    GLsizei depth = 1; // or layers
};

// The host judges targets and levels that are none.
[[nodiscard]] bool isTooLarge(const EsContext &context, GLenum target, GLint level, const ImageSize &size);
