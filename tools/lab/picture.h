// Pictures of frames, and comparison of two of them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct Picture {
    int width = 0;
    int height = 0;
    std::vector<uint8_t> pixels; // RGB, the top row first
};

// Reads a PPM file with 8 bits per channel, as the library writes it. Nothing for other files.
[[nodiscard]] std::optional<Picture> readPicture(const std::string &path);

// The bytes of a PNG file. Empty when libpng fails.
[[nodiscard]] std::string pngOf(const Picture &picture);

struct PictureDifference {
    uint64_t pixels = 0; // that differ
    double share = 0;    // of all pixels, from 0 to 1
    Picture picture;     // differing pixels are bright, the others a dark grey copy of the reference
};

// A pixel differs when one of its channels differs by more than this; drivers round and blend edges differently.
inline constexpr int channelTolerance = 16;

// Nothing for pictures of different sizes.
[[nodiscard]] std::optional<PictureDifference> differenceOf(const Picture &reference, const Picture &picture);
