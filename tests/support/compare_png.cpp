// Compares two pictures byte by byte and prints the largest difference.
// Usage: compare_png FIRST SECOND [LIMIT]      exit status 0 when no difference exceeds LIMIT (0), 1 when one does, 2
// when the pictures cannot be compared.
#include <png.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

struct Picture {
    explicit Picture(const char *file) {
        image.version = PNG_IMAGE_VERSION;
        if (png_image_begin_read_from_file(&image, file)) {
            image.format = PNG_FORMAT_RGBA;
            rgba.resize(PNG_IMAGE_SIZE(image));
            if (png_image_finish_read(&image, nullptr, rgba.data(), 0, nullptr)) return;
        }
        std::fprintf(stderr, "compare_png: \"%s\": %s\n", file, image.message);
        std::exit(2);
    }

    png_image image = {};
    std::vector<png_byte> rgba;
};

} // namespace

int main(int argc, char **argv) {
    if (argc != 3 && argc != 4) {
        std::fputs("Usage: compare_png FIRST SECOND [LIMIT]\n", stderr);
        return 2;
    }
    const Picture first(argv[1]), second(argv[2]);
    if (first.image.width != second.image.width || first.image.height != second.image.height) {
        std::fputs("compare_png: the sizes differ\n", stderr);
        return 2;
    }
    int largest = 0;
    for (size_t i = 0; i < first.rgba.size(); ++i)
        largest = std::max(largest, std::abs(first.rgba[i] - second.rgba[i]));
    std::printf("largest difference: %d\n", largest);
    return largest > (argc == 4 ? std::atoi(argv[3]) : 0) ? 1 : 0;
}
