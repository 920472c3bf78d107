// The entries that ES means otherwise than the host. Each forwards as it is where no context of this back end is
// current.
#pragma once

// The names of extensions have prototypes too.
#define GL_GLEXT_PROTOTYPES
#include <GLES3/gl32.h>

#include <GLES2/gl2ext.h>

#include <string_view>

// Null for a name that the host serves as it is.
[[nodiscard]] void *findOverride(std::string_view name);

// The published prototypes are those of the overrides; a definition with another one does not link.
namespace overrides {
#define OVERRIDE(name, function) decltype(::name) function;
#include "data/overrides.def"
#undef OVERRIDE
} // namespace overrides
