// The colour buffer of the surface: GL_BACK in ES. The host's has a side, and a pixel buffer has no back buffer.
#pragma once

#include "es_gl.h"

constexpr GLenum hostFrontLeft = 0x0400;
constexpr GLenum hostBackLeft = 0x0402;

// Maps the names of ES to the host's and back. Others, such as colour attachments, are returned unchanged.
[[nodiscard]] GLenum hostBuffer(GLenum buffer);
[[nodiscard]] GLenum esBuffer(GLenum buffer);
