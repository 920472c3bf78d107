// Copies from the framebuffer into textures whose format a core context lacks. The host would copy red where such a
// texture has alpha, so the pixels are read back and specified again.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "common/per_back_end/pixel_store.h"
#include "context/es_context.h"
#include "textures/texture_formats.h"
#include "textures/texture_limits.h"
#include "textures/texture_replacement.h"

#include <algorithm>
#include <vector>

namespace {

// The components of an RGBA pixel that a host texture stores, under the swizzle of its format.
struct Channels {
    size_t count;
    size_t first;
};

// Only these two swizzles store alpha in another component: (0, 0, 0, r) and (r, r, r, g).
Channels channelsOf(const Swizzle &swizzle) {
    if (swizzle[3] == GL_RED) return {1, 3};
    if (swizzle[3] == GL_GREEN) return {2, 0};
    return {0, 0};
}

struct Area {
    GLint x, y;
    GLsizei width, height;
};

std::vector<GLubyte> readChannels(const Area &area, const Channels &channels) {
    const size_t count = static_cast<size_t>(area.width) * static_cast<size_t>(area.height);
    std::vector<GLubyte> pixels(count * 4);
    hostGl().readPixels(area.x, area.y, area.width, area.height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    std::vector<GLubyte> result(count * channels.count);
    for (size_t pixel = 0; pixel < count; ++pixel) {
        result[pixel * channels.count] = pixels[pixel * 4 + channels.first];
        if (channels.count == 2) result[pixel * 2 + 1] = pixels[pixel * 4 + 3];
    }
    return result;
}

// upload: called with the packed pixels and their format.
template <typename Upload>
void copyThroughMemory(const Area &area, const Channels &channels, Upload upload) {
    const PackedPixels packed;
    const std::vector<GLubyte> pixels = readChannels(area, channels);
    upload(channels.count == 1 ? GL_RED : GL_RG, pixels.data());
}

} // namespace

namespace overrides {

void GL_APIENTRY copyTexImage2D(GLenum target, GLint level, GLenum internalformat, GLint x, GLint y, GLsizei width,
                                GLsizei height, GLint border) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    const HostTextureFormat host = hostTextureFormat(internalformat, internalformat, GL_UNSIGNED_BYTE);
    if (!context) return gl.copyTexImage2D(target, level, internalformat, x, y, width, height, border);
    if (isTooLarge(*context, target, level, {width, height})) return context->raise(GL_INVALID_VALUE);
    leaveImage(*context, target, level);
    const Channels channels = channelsOf(host.swizzle);
    if (channels.count == 0 || width <= 0 || height <= 0 || border != 0) {
        gl.copyTexImage2D(target, level, host.internal, x, y, width, height, border);
    } else {
        copyThroughMemory({x, y, width, height}, channels, [&](GLenum format, const void *pixels) {
            gl.texImage2D(target, level, static_cast<GLint>(host.internal), width, height, 0, format, GL_UNSIGNED_BYTE,
                          pixels);
        });
    }
    setFormatSwizzle(*context, target, internalformat, host);
}

void GL_APIENTRY copyTexSubImage2D(GLenum target, GLint level, GLint xoffset, GLint yoffset, GLint x, GLint y,
                                   GLsizei width, GLsizei height) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    const Channels channels = context ? channelsOf(formatSwizzle(*context, target).ofFormat) : Channels{};
    if (channels.count == 0 || width <= 0 || height <= 0) {
        return gl.copyTexSubImage2D(target, level, xoffset, yoffset, x, y, width, height);
    }
    copyThroughMemory({x, y, width, height}, channels, [&](GLenum format, const void *pixels) {
        gl.texSubImage2D(target, level, xoffset, yoffset, width, height, format, GL_UNSIGNED_BYTE, pixels);
    });
}

} // namespace overrides
