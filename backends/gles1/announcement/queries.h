// The answers to glGet that do not come from the host.
#pragma once

#include "es_gl.h"

#include <optional>
#include <vector>

class EsContext;

// Of the vertex arrays that the host does not hold; nothing where the host's answer is right.
[[nodiscard]] std::optional<GLint> ownArrayState(const EsContext &context, GLenum pname);
