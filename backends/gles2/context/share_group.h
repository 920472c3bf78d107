// The shared state of a share group's contexts, which own it together. Any thread.
#pragma once

#include "framebuffers/renderbuffer_images.h"
#include "programs/shared_programs.h"
#include "textures/textures.h"
#include "vertices/shared_buffers.h"

struct ShareGroup {
    SharedBuffers buffers;
    NameTable renderbuffers;
    RenderbufferImages renderbufferImages;
    SharedTextures textures;
    SharedPrograms programs;
};
