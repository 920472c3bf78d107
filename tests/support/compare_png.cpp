// Compares two pictures and prints the largest difference of each channel.
// Usage: compare_png FIRST SECOND [LIMIT]      exit status 0 when no difference exceeds LIMIT (0), 1 when one does, 2
// when the pictures cannot be compared.
#include <png.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <vector>

namespace {

struct Picture {
    png_uint_32 width;
    png_uint_32 height;
    std::vector<png_byte> rgba;
};

std::optional<Picture> read(const char *file) {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, file)) {
        image.format = PNG_FORMAT_RGBA;
        Picture picture = {image.width, image.height, std::vector<png_byte>(PNG_IMAGE_SIZE(image))};
        if (png_image_finish_read(&image, nullptr, picture.rgba.data(), 0, nullptr)) return picture;
    }
    std::fprintf(stderr, "compare_png: \"%s\": %s\n", file, image.message);
    return std::nullopt;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 3 && argc != 4) {
        std::fputs("Usage: compare_png FIRST SECOND [LIMIT]\n", stderr);
        return 2;
    }
    const int limit = argc == 4 ? std::atoi(argv[3]) : 0;
    const auto first = read(argv[1]);
    const auto second = read(argv[2]);
    if (!first || !second) return 2;
    if (first->width != second->width || first->height != second->height) {
        std::fprintf(stderr, "compare_png: sizes differ: %u x %u and %u x %u\n", first->width, first->height,
                     second->width, second->height);
        return 2;
    }
    std::array<int, 4> largest = {};
    size_t differing = 0;
    for (size_t pixel = 0; pixel < first->rgba.size(); pixel += 4) {
        bool isEqual = true;
        for (size_t channel = 0; channel < 4; ++channel) {
            const int difference = std::abs(first->rgba[pixel + channel] - second->rgba[pixel + channel]);
            largest[channel] = std::max(largest[channel], difference);
            isEqual = isEqual && difference == 0;
        }
        if (!isEqual) ++differing;
    }
    std::printf("largest difference: red %d, green %d, blue %d, alpha %d; %zu of %zu pixels differ\n", largest[0],
                largest[1], largest[2], largest[3], differing, first->rgba.size() / 4);
    return std::ranges::max(largest) > limit ? 1 : 0;
}
