#include "picture.h"

#include <png.h>

#include <stdexcept>

void writePng(const std::string &file, Size size, const std::vector<GLubyte> &pixels) {
    const auto width = static_cast<size_t>(size.width);
    std::vector<GLubyte> rgb;
    rgb.reserve(pixels.size() / 4 * 3);
    for (size_t row = static_cast<size_t>(size.height); row-- > 0;) {
        for (size_t column = 0; column < width; ++column) {
            const GLubyte *const pixel = &pixels[(row * width + column) * 4];
            rgb.insert(rgb.end(), pixel, pixel + 3);
        }
    }
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(size.width);
    image.height = static_cast<png_uint_32>(size.height);
    image.format = PNG_FORMAT_RGB;
    if (!png_image_write_to_file(&image, file.c_str(), 0, rgb.data(), 0, nullptr)) {
        throw std::runtime_error("picture \"" + file + "\" cannot be written: " + image.message);
    }
}
