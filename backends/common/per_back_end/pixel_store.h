// Pixel storage modes.
#pragma once

#include "es_gl.h"

#include <array>
#include <cstddef>

// While it lives, pixels are transferred to and from client memory, packed; then the application's modes are restored.
class PackedPixels {
public:
    PackedPixels();
    ~PackedPixels();
    PackedPixels(const PackedPixels &) = delete;
    PackedPixels &operator=(const PackedPixels &) = delete;

    static constexpr size_t ruleCount = 10;

private:
    std::array<GLint, ruleCount> m_rules;
    GLint m_packBuffer = 0;
    GLint m_unpackBuffer = 0;
};
