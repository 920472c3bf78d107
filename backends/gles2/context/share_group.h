// What the contexts of a share group have in common. They own it together. Any thread.
#pragma once

#include "names/name_table.h"
#include "names/shared_map.h"
#include "textures/texture_swizzles.h"

#include <mutex>
#include <string>
#include <vector>

struct ShareGroup {
    NameTable buffers;
    NameTable renderbuffers;
    NameTable textures;
    TextureSwizzles swizzles;
    SharedMap<uint32_t> activeAttribs;    // of programs: one bit each
    SharedMap<std::string> shaderSources; // of shaders: as the application gave them, where the host has another form

    std::mutex abandonedMutex;
    // Rings of contexts that have ended: one that still lives has to delete them. Guarded by the mutex above.
    std::vector<GLuint> abandonedBuffers;
};
