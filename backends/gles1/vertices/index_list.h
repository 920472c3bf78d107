// The indices of one draw, wherever they lie.
#pragma once

#include "common/index_size.h"
#include "es_gl.h"

#include <optional>
#include <vector>

// Of client memory, or of the bound element buffer. Nothing where the buffer ends before the list does. count: above 0.
[[nodiscard]] std::optional<std::vector<GLuint>> readIndices(GLsizei count, GLenum type, const void *indices);
