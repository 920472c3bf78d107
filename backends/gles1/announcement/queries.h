// The results of glGet that do not come from the host.
#pragma once

#include "es_gl.h"

#include <optional>
#include <vector>

class EsContext;

// For vertex arrays that the host does not hold; nothing where the host's value is right.
[[nodiscard]] std::optional<GLint> ownArrayState(const EsContext &context, GLenum pname);
