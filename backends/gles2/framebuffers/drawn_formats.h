// The color-renderable formats and renderbuffer formats. Pure.
#pragma once

#include "es_gl.h"

// Whether a renderbuffer of this version of ES may have the format; the host rejects what it does not support itself.
[[nodiscard]] bool isRenderbufferFormat(GLenum internal, GLint major);

// Whether textures of this format are color-renderable in ES, if they are on the host.
[[nodiscard]] bool isDrawnFormat(GLenum internal);
