#include "tools/lab/picture.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>

#include <png.h>

std::optional<Picture> readPicture(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    std::string kind;
    int highest = 0;
    Picture picture;
    file >> kind >> picture.width >> picture.height >> highest;
    file.get(); // skips the blank before the pixels
    constexpr int most = 1 << 15;
    if (!file || kind != "P6" || highest != 255 || picture.width <= 0 || picture.height <= 0 || picture.width > most ||
        picture.height > most)
        return std::nullopt;
    picture.pixels.resize(static_cast<size_t>(picture.width) * static_cast<size_t>(picture.height) * 3);
    file.read(reinterpret_cast<char *>(picture.pixels.data()), static_cast<std::streamsize>(picture.pixels.size()));
    return file ? std::optional(std::move(picture)) : std::nullopt;
}

std::string pngOf(const Picture &picture) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(picture.width);
    image.height = static_cast<png_uint_32>(picture.height);
    image.format = PNG_FORMAT_RGB;
    png_alloc_size_t size = 0;
    if (!png_image_write_get_memory_size(image, size, 0, picture.pixels.data(), 0, nullptr)) return {};
    std::string bytes(size, '\0');
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, picture.pixels.data(), 0, nullptr)) return {};
    bytes.resize(size);
    return bytes;
}

std::optional<PictureDifference> differenceOf(const Picture &reference, const Picture &picture) {
    if (reference.width != picture.width || reference.height != picture.height) return std::nullopt;
    PictureDifference difference;
    difference.picture = {picture.width, picture.height, std::vector<uint8_t>(picture.pixels.size())};
    for (size_t pixel = 0; pixel < picture.pixels.size(); pixel += 3) {
        const uint8_t *one = &reference.pixels[pixel], *other = &picture.pixels[pixel];
        uint8_t *out = &difference.picture.pixels[pixel];
        int most = 0;
        for (int channel = 0; channel < 3; ++channel)
            most = std::max(most, std::abs(one[channel] - other[channel]));
        const bool differs = most > channelTolerance;
        difference.pixels += differs;
        const int shadow = (one[0] + one[1] + one[2]) / 12;
        out[0] = static_cast<uint8_t>(differs ? std::clamp(most * 2, 128, 255) : shadow);
        out[1] = out[2] = static_cast<uint8_t>(differs ? 32 : shadow);
    }
    difference.share = static_cast<double>(difference.pixels) / (static_cast<double>(picture.pixels.size()) / 3);
    return difference;
}
