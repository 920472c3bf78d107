// The color-renderable formats and renderbuffer formats. Pure.
#pragma once

#include "es_gl.h"

// Whether a renderbuffer of this version of ES may have the format; the host rejects what it does not support itself.
[[nodiscard]] bool isRenderbufferFormat(GLenum internal, GLint major);

// Whether ES can draw to textures of this format where the host can.
[[nodiscard]] bool isDrawnFormat(GLenum internal);
