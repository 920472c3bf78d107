#include "common/etc1.h"

#include <algorithm>
#include <array>

namespace {

using Color = std::array<int, 3>;

// The values that a texel's two bits add to the colour of its half, by the table number of the half.
constexpr int modifiers[8][4] = {
    {2, 8, -2, -8},     {5, 17, -5, -17},   {9, 29, -9, -29},     {13, 42, -13, -42},
    {18, 60, -18, -60}, {24, 80, -24, -80}, {33, 106, -33, -106}, {47, 183, -47, -183},
};

constexpr int from4Bits(int value) {
    return value * 17;
}

constexpr int from5Bits(int value) {
    return value << 3 | value >> 2;
}

struct Block {
    Color colors[2]; // of the two halves
    int tables[2];
    bool isFlipped; // the halves are one above the other
    uint32_t bits;  // of the texels, column by column: low bits in the low half, high bits in the high half
};

Block readBlock(const uint8_t *data) {
    Block block;
    const bool isDifferential = data[3] & 2;
    for (size_t channel = 0; channel < 3; ++channel) {
        const int byte = data[channel];
        if (isDifferential) {
            const int base = byte >> 3;
            const int difference = (byte & 3) - (byte & 4);
            block.colors[0][channel] = from5Bits(base);
            // The data is invalid if this is out of range; any colour is allowed then.
            block.colors[1][channel] = from5Bits((base + difference) & 31);
        } else {
            block.colors[0][channel] = from4Bits(byte >> 4);
            block.colors[1][channel] = from4Bits(byte & 15);
        }
    }
    block.tables[0] = data[3] >> 5;
    block.tables[1] = data[3] >> 2 & 7;
    block.isFlipped = data[3] & 1;
    block.bits = uint32_t{data[4]} << 24 | uint32_t{data[5]} << 16 | uint32_t{data[6]} << 8 | data[7];
    return block;
}

void writeTexel(const Block &block, size_t x, size_t y, uint8_t *texel) {
    const size_t half = (block.isFlipped ? y : x) / 2;
    const size_t place = x * 4 + y;
    const size_t index = (block.bits >> (place + 16) & 1) << 1 | (block.bits >> place & 1);
    for (size_t channel = 0; channel < 3; ++channel) {
        const int value = block.colors[half][channel] + modifiers[block.tables[half]][index];
        texel[channel] = static_cast<uint8_t>(std::clamp(value, 0, 255));
    }
}

} // namespace

std::vector<uint8_t> decodeEtc1(const uint8_t *data, size_t width, size_t height) {
    std::vector<uint8_t> texels(width * height * 3);
    for (size_t top = 0; top < height; top += 4) {
        for (size_t left = 0; left < width; left += 4, data += 8) {
            const Block block = readBlock(data);
            for (size_t y = top; y < std::min(top + 4, height); ++y)
                for (size_t x = left; x < std::min(left + 4, width); ++x)
                    writeTexel(block, x - left, y - top, &texels[(y * width + x) * 3]);
        }
    }
    return texels;
}
