// The entries that differ between ES and the host: the rows of the back end's data/overrides.def. Each forwards as far
// as it can when no context of this back end is current.
#pragma once

#include "es_gl.h"

#include <string_view>

// Null for a name that the host implements as ES does.
[[nodiscard]] void *findOverride(std::string_view name);

// The published prototypes are those of the overrides; a definition with another one does not link.
namespace overrides {
#define OVERRIDE(name, function) decltype(::name) function;
#include "data/overrides.def"
#undef OVERRIDE
} // namespace overrides
