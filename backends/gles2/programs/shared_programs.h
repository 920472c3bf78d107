// What a share group keeps of programs and shaders. Any thread.
#pragma once

#include "names/shared_map.h"

#include <string>

struct SharedPrograms {
    SharedMap<uint32_t> activeAttribs;    // of programs: one bit each
    SharedMap<std::string> shaderSources; // of shaders: as the application gave them, where the host has another form
};
