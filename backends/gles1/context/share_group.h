// What the contexts of a share group have in common. They own it together. Any thread.
#pragma once

#include "textures/texture_crops.h"

struct ShareGroup {
    TextureCrops textureCrops;
};
