// What is kept of textures, by a context and by its share group.
#pragma once

#include "names/name_table.h"
#include "textures/block_formats.h"
#include "common/per_back_end/shared_images.h"
#include "textures/texture_swizzles.h"

#include <atomic>
#include <unordered_map>

// Pixels of this format and type that an image of this internal format takes.
struct TakenPart {
    GLenum internal = GL_NONE, format = GL_NONE, type = GL_NONE;

    [[nodiscard]] bool operator==(const TakenPart &) const = default;
};

// Used on the context's thread.
struct Textures {
    std::unordered_map<GLuint, GLuint> lastNames; // by the host's: what it was bound as, where the names differ
    TextureSwizzles swizzlesOfZero;               // of the textures of name 0
    TakenPart lastTaken;                          // of parts: most are like the last one
    GLenum mipmapHint = GL_DONT_CARE;
    GLenum unitEnd = ~0u; // behind the names of the device's texture units
};

// Any thread.
struct SharedTextures {
    NameTable names;
    TextureSwizzles swizzles;
    SharedImages images;
    std::atomic<bool> mayHoldBlocks = false; // of ETC2 or ASTC, in any texture

    // A texture gets this format.
    void noteFormat(GLenum internal) {
        if (findBlockFormat(internal)) mayHoldBlocks.store(true, std::memory_order_relaxed);
    }
};

// Deletes the storages of EGL images that have ended. With the host context current.
void deleteEndedImages(SharedTextures &textures);

// The host's name for the application's, which gets an object if it is new.
[[nodiscard]] GLuint hostTexture(GLuint name);
