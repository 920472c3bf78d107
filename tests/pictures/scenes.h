// The scenes of scenes.def.
#pragma once

#include "pictures/gl.h"

namespace scenes {
#define SCENE(name) void name();
#include "pictures/scenes.def"
#undef SCENE
} // namespace scenes
