// The results of glGet that differ from the host's.
#pragma once

#include "es_gl.h"

#include <optional>
#include <vector>

class EsContext;

// The state of vertex arrays that the host does not hold; nothing if the host's value is correct.
[[nodiscard]] std::optional<GLint> ownArrayState(const EsContext &context, GLenum pname);
