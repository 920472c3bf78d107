// What the contexts of a share group have in common. They own it together.
#pragma once

#include "name_table.h"
#include "texture_swizzles.h"

#include <mutex>
#include <unordered_map>

struct ShareGroup {
    NameTable buffers;
    NameTable renderbuffers;
    NameTable textures;
    TextureSwizzles swizzles;
    // A context of another back end shares the host's objects: names that are not known here may be its own.
    bool hasForeignContexts = false;

    std::mutex activeAttribsMutex;
    std::unordered_map<GLuint, uint32_t> activeAttribs; // by program; guarded by the mutex above

    NameTable::IsObject *foreign(NameTable::IsObject *isObject) const {
        return hasForeignContexts ? isObject : nullptr;
    }
};
