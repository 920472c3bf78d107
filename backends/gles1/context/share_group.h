// The shared state of a share group's contexts, which own it together. Any thread.
#pragma once

#include "common/per_back_end/shared_images.h"
#include "textures/stand_ins.h"
#include "textures/texture_crops.h"

struct ShareGroup {
    TextureCrops textureCrops;
    StandIns standIns;
    SharedImages images;
};
