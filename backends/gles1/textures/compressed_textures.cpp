// Paletted and ETC1 textures are decoded here, since hosts may lack them. Other formats are passed to the host.
#include "common/etc1.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace {

struct PaletteFormat {
    GLenum name;
    size_t bits, bytes;
    GLenum format, type;
};

constexpr PaletteFormat paletteFormats[] = {
#define PALETTE_FORMAT(name, bits, bytes, format, type) {name, bits, bytes, format, type},
#include "textures/palette_formats.def"
#undef PALETTE_FORMAT
};

const PaletteFormat *findPaletteFormat(GLenum name) {
    const auto row = std::ranges::find(paletteFormats, name, &PaletteFormat::name);
    return row == std::end(paletteFormats) ? nullptr : row;
}

struct Image {
    GLenum target;
    GLint level;
    GLsizei width, height;
};

// The texels are tightly packed, whatever alignment the application has set.
void upload(const Image &image, GLenum format, GLenum type, const uint8_t *texels) {
    const HostGl &gl = hostGl();
    GLint before = 4;
    gl.getIntegerv(GL_UNPACK_ALIGNMENT, &before);
    gl.pixelStorei(GL_UNPACK_ALIGNMENT, 1);
    gl.texImage2D(image.target, image.level, static_cast<GLint>(format), image.width, image.height, 0, format, type,
                  texels);
    gl.pixelStorei(GL_UNPACK_ALIGNMENT, before);
}

size_t texelCount(const Image &image) {
    return static_cast<size_t>(image.width) * static_cast<size_t>(image.height);
}

size_t indexBytes(const PaletteFormat &format, const Image &image) {
    return (texelCount(image) * format.bits + 7) / 8;
}

// The next smaller level of an image.
Image nextLevel(const Image &image) {
    return {image.target, image.level + 1, std::max(image.width / 2, 1), std::max(image.height / 2, 1)};
}

void uploadPaletted(const PaletteFormat &format, const Image &image, const uint8_t *palette, const uint8_t *indices) {
    std::vector<uint8_t> texels(texelCount(image) * format.bytes);
    for (size_t texel = 0; texel < texelCount(image); ++texel) {
        // The first of two indices in a byte is in the high half.
        const unsigned index = format.bits == 8 ? indices[texel]
                               : texel % 2 == 0 ? indices[texel / 2] >> 4
                                                : indices[texel / 2] & 15;
        std::memcpy(&texels[texel * format.bytes], palette + index * format.bytes, format.bytes);
    }
    upload(image, format.format, format.type, texels.data());
}

bool isTooLarge(GLsizei width, GLsizei height) {
    GLint limit = 0;
    hostGl().getIntegerv(GL_MAX_TEXTURE_SIZE, &limit);
    return width < 0 || height < 0 || width > limit || height > limit;
}

// One call specifies all levels: level is minus the number of the last one.
GLenum setPaletted(const PaletteFormat &format, const Image &image, size_t size, const uint8_t *data) {
    constexpr GLint maxLevels = 31;
    if (image.target != GL_TEXTURE_2D) return GL_INVALID_ENUM;
    if (image.level > 0 || image.level < -maxLevels || isTooLarge(image.width, image.height)) return GL_INVALID_VALUE;
    const size_t paletteBytes = (size_t{1} << format.bits) * format.bytes;
    size_t wanted = paletteBytes;
    Image part = {image.target, 0, image.width, image.height};
    for (; part.level <= -image.level; part = nextLevel(part))
        wanted += indexBytes(format, part);
    if (size != wanted || !data) return GL_INVALID_VALUE;
    const uint8_t *indices = data + paletteBytes;
    for (part = {image.target, 0, image.width, image.height}; part.level <= -image.level; part = nextLevel(part)) {
        uploadPaletted(format, part, data, indices);
        indices += indexBytes(format, part);
    }
    return GL_NO_ERROR;
}

GLenum setEtc1(const Image &image, size_t size, const uint8_t *data) {
    if (image.level < 0 || isTooLarge(image.width, image.height)) return GL_INVALID_VALUE;
    const auto width = static_cast<size_t>(image.width);
    const auto height = static_cast<size_t>(image.height);
    if (size != etc1Size(width, height) || !data) return GL_INVALID_VALUE;
    upload(image, GL_RGB, GL_UNSIGNED_BYTE, decodeEtc1(data, width, height).data());
    return GL_NO_ERROR;
}

} // namespace

namespace overrides {

void GL_APIENTRY compressedTexImage2D(GLenum target, GLint level, GLenum internalformat, GLsizei width, GLsizei height,
                                      GLint border, GLsizei imageSize, const void *data) {
    EsContext *const context = EsContext::current();
    leaveImage(target, level < 0 ? allLevels : level);
    const PaletteFormat *const palette = findPaletteFormat(internalformat);
    const bool isHosts = !palette && internalformat != GL_ETC1_RGB8_OES;
    if (!context || isHosts)
        return hostGl().compressedTexImage2D(target, level, internalformat, width, height, border, imageSize, data);
    if (border != 0 || imageSize < 0) return context->raise(GL_INVALID_VALUE);
    const Image image = {target, level, width, height};
    const auto size = static_cast<size_t>(imageSize);
    const auto *const bytes = static_cast<const uint8_t *>(data);
    reportingMemory(*context, [&] {
        const GLenum error = palette ? setPaletted(*palette, image, size, bytes) : setEtc1(image, size, bytes);
        if (error != GL_NO_ERROR) context->raise(error);
    });
}

// Parts of decoded images cannot be replaced.
void GL_APIENTRY compressedTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLsizei width,
                                         GLsizei height, GLenum format, GLsizei imageSize, const void *data) {
    if (findPaletteFormat(format) || format == GL_ETC1_RGB8_OES) return raise(GL_INVALID_OPERATION);
    hostGl().compressedTexSubImage2D(target, level, xoffset, yoffset, width, height, format, imageSize, data);
}

} // namespace overrides
