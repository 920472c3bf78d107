// The texture state of a context and of its share group.
#pragma once

#include "common/per_back_end/shared_images.h"
#include "names/name_table.h"
#include "textures/block_formats.h"
#include "textures/texture_swizzles.h"

#include <atomic>
#include <unordered_map>

// The pixel format and type that are accepted for an image of this internal format.
struct TakenPart {
    GLenum internal = GL_NONE, format = GL_NONE, type = GL_NONE;

    [[nodiscard]] bool operator==(const TakenPart &) const = default;
};

// Used on the context's thread.
struct Textures {
    std::unordered_map<GLuint, GLuint> lastNames; // by the host's: the bound name, where the names differ
    TextureSwizzles swizzlesOfZero;               // of the textures of name 0
    TakenPart lastTaken;                          // of parts: most are like the last one
    GLenum mipmapHint = GL_DONT_CARE;
    GLenum unitEnd = ~0u; // one past the names of the device's texture units
};

// Any thread.
struct SharedTextures {
    NameTable names;
    TextureSwizzles swizzles;
    SharedImages images;
    std::atomic<bool> mayHoldBlocks = false; // of ETC2 or ASTC, in any texture

    // Called when a texture gets this format.
    void noteFormat(GLenum internal) {
        if (findBlockFormat(internal)) mayHoldBlocks.store(true, std::memory_order_relaxed);
    }
};

// Deletes the storages of destroyed EGL images. With the host context current.
void deleteEndedImages(SharedTextures &textures);

// The host's name for the application's; a new name gets an object.
[[nodiscard]] GLuint hostTexture(GLuint name);
