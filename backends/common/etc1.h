// Decoding of ETC1 textures.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// Bytes of an image: 8 for each block of 4 x 4 texels, partial ones included.
[[nodiscard]] constexpr size_t etc1Size(size_t width, size_t height) {
    return (width + 3) / 4 * ((height + 3) / 4) * 8;
}

// RGB, 3 bytes a texel, tightly packed rows. data: etc1Size() bytes.
[[nodiscard]] std::vector<uint8_t> decodeEtc1(const uint8_t *data, size_t width, size_t height);
