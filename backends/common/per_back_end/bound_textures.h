// The textures that are bound to a context's units, by the host's names.
#pragma once

#include "es_gl.h"

// The texture of the active unit. binding: the query of a target's texture.
[[nodiscard]] GLuint textureBoundTo(GLenum binding);

// Binds fresh to the target in every unit that has old. unitLimit: the query of the number of units.
void rebindUnits(GLenum target, GLenum binding, GLenum unitLimit, GLuint old, GLuint fresh);
