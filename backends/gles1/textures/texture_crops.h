// The texture crop rectangles that glDrawTex uses. Textures are shared by contexts, and their rectangles with them.
#pragma once

#include "es_gl.h"

#include <array>
#include <map>
#include <mutex>

using TextureCrop = std::array<GLint, 4>; // left, bottom, width, height in texels; the sizes may be negative

// Any thread.
class TextureCrops {
public:
    void set(GLuint texture, const TextureCrop &crop);
    // Zeros for a texture without one.
    [[nodiscard]] TextureCrop get(GLuint texture);
    void forget(GLuint texture);

private:
    std::mutex m_mutex;
    std::map<GLuint, TextureCrop> m_crops; // guarded by m_mutex
};

class EsContext;

// The rectangle of the texture that is bound to the active unit. Requires a current host context.
[[nodiscard]] TextureCrop boundTextureCrop(EsContext &context);
