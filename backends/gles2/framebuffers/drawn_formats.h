// The formats that can be drawn to. Pure.
#pragma once

#include "es_gl.h"

// Whether a renderbuffer of this version of ES may hold the format; the host judges what it cannot hold itself.
[[nodiscard]] bool isRenderbufferFormat(GLenum internal, GLint major);

// Whether ES draws to textures of this format where the host does.
[[nodiscard]] bool isDrawnFormat(GLenum internal);
