// The indices of one draw, in client memory or a buffer.
#pragma once

#include "common/index_size.h"
#include "es_gl.h"

#include <optional>
#include <vector>

// From client memory, or the bound element buffer. Nothing if the buffer is too small for the list. count: above 0.
[[nodiscard]] std::optional<std::vector<GLuint>> readIndices(GLsizei count, GLenum type, const void *indices);
