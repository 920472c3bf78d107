// Copies between images. The host copies between compressed and other formats only where desktop OpenGL has those
// formats itself; ETC2 and ASTC blocks are read back and specified again. Source and destination are host images of
// their formats, or of formats that the host treats as the same.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "common/per_back_end/pixel_store.h"
#include "context/es_context.h"
#include "textures/texture_targets.h"

#include <algorithm>
#include <new>
#include <vector>

namespace {

// One end of a copy: an image and where in it the part begins.
struct End {
    GLuint name; // the host's
    GLenum target;
    GLint level, x, y, z;
};

struct Extent {
    GLsizei width, height, depth;
};

struct Format {
    GLenum internal;
    const BlockFormat *block; // null for texels

    [[nodiscard]] GLsizei bytes() const { return block ? block->bytes : blockTexelSize(internal); }
    // The number of blocks or texels for a size in texels.
    [[nodiscard]] GLsizei columns(GLsizei width) const {
        return block ? (width + block->width - 1) / block->width : width;
    }
    [[nodiscard]] GLsizei rows(GLsizei height) const {
        return block ? (height + block->height - 1) / block->height : height;
    }
    [[nodiscard]] GLsizei size(const Extent &extent) const {
        return columns(extent.width) * rows(extent.height) * extent.depth * bytes();
    }
};

GLint ask(const End &end, GLenum ofTexture, GLenum ofRenderbuffer) {
    GLint value = 0;
    if (end.target == GL_RENDERBUFFER) {
        hostGl().getNamedRenderbufferParameteriv(end.name, ofRenderbuffer, &value);
    } else {
        hostGl().getTextureLevelParameteriv(end.name, end.level, ofTexture, &value);
    }
    return value;
}

Format formatOf(const End &end) {
    const auto internal = static_cast<GLenum>(ask(end, GL_TEXTURE_INTERNAL_FORMAT, GL_RENDERBUFFER_INTERNAL_FORMAT));
    return {internal, findBlockFormat(internal)};
}

// Whether ES allows copies between the two formats and the host does not.
bool isDetour(const Format &from, const Format &to) {
    if (from.internal == to.internal || (!from.block && !to.block)) return false;
    if (from.block && to.block) return from.block->relative == to.internal;
    return from.bytes() == to.bytes();
}

void copyOnHost(const End &from, const End &to, const Extent &extent) {
    hostGl().copyImageSubData(from.name, from.target, from.level, from.x, from.y, from.z, to.name, to.target, to.level,
                              to.x, to.y, to.z, extent.width, extent.height, extent.depth);
}

// A format whose texels have this size.
constexpr GLenum plainFormat(GLsizei bytes) {
    return bytes == 16 ? GL_RGBA32UI : GL_RG32UI;
}

// A temporary host image for one end of a copy, which the application cannot see. The destructor restores the binding.
class Between {
public:
    Between(NameTable &names, const Format &format, const Extent &extent)
        : m_names(names), m_format(format), m_extent(extent) {
        const HostGl &gl = hostGl();
        m_texture = names.generateHidden(gl.genTextures);
        gl.getIntegerv(GL_TEXTURE_BINDING_2D_ARRAY, &m_bound);
        gl.bindTexture(GL_TEXTURE_2D_ARRAY, m_texture);
        const GLenum internal = format.block ? format.internal : plainFormat(format.bytes());
        gl.texStorage3D(GL_TEXTURE_2D_ARRAY, 1, internal, extent.width, extent.height, extent.depth);
    }
    ~Between() {
        hostGl().bindTexture(GL_TEXTURE_2D_ARRAY, static_cast<GLuint>(m_bound));
        m_names.forgetHidden(m_texture);
        hostGl().deleteTextures(1, &m_texture);
    }
    Between(const Between &) = delete;
    Between &operator=(const Between &) = delete;

    [[nodiscard]] End end() const { return {m_texture, GL_TEXTURE_2D_ARRAY, 0, 0, 0, 0}; }
    void read(std::vector<GLubyte> &bytes) const {
        const HostGl &gl = hostGl();
        if (m_format.block) return gl.getCompressedTexImage(GL_TEXTURE_2D_ARRAY, 0, bytes.data());
        gl.getTexImage(GL_TEXTURE_2D_ARRAY, 0, texelFormat(), GL_UNSIGNED_INT, bytes.data());
    }
    void write(const std::vector<GLubyte> &bytes) const {
        const HostGl &gl = hostGl();
        const auto &[width, height, depth] = m_extent;
        if (m_format.block) {
            return gl.compressedTexSubImage3D(GL_TEXTURE_2D_ARRAY, 0, 0, 0, 0, width, height, depth, m_format.internal,
                                              m_format.size(m_extent), bytes.data());
        }
        gl.texSubImage3D(GL_TEXTURE_2D_ARRAY, 0, 0, 0, 0, width, height, depth, texelFormat(), GL_UNSIGNED_INT,
                         bytes.data());
    }

private:
    [[nodiscard]] GLenum texelFormat() const { return m_format.bytes() == 16 ? GL_RGBA_INTEGER : GL_RG_INTEGER; }

    NameTable &m_names;
    const Format m_format;
    const Extent m_extent;
    GLuint m_texture = 0;
    GLint m_bound = 0;
};

// The extent of the part at the other end. Blocks at the border of an image may exceed it.
Extent extentAt(const End &to, const Format &format, const Format &from, const Extent &extent) {
    const GLsizei columns = from.columns(extent.width);
    const GLsizei rows = from.rows(extent.height);
    if (!format.block) return {columns, rows, extent.depth};
    const GLint width = ask(to, GL_TEXTURE_WIDTH, GL_RENDERBUFFER_WIDTH);
    const GLint height = ask(to, GL_TEXTURE_HEIGHT, GL_RENDERBUFFER_HEIGHT);
    return {std::min(columns * format.block->width, width - to.x), std::min(rows * format.block->height, height - to.y),
            extent.depth};
}

bool isEmpty(const Extent &extent) {
    return extent.width <= 0 || extent.height <= 0 || extent.depth <= 0;
}

// Keeps the host's pending error, to tell it from an error of the copy.
void takeHostError(EsContext &context) {
    const GLenum error = hostGl().getError();
    if (error != GL_NO_ERROR) context.raise(error);
}

void copyThroughMemory(EsContext &context, const End &from, const End &to, const Extent &extent) {
    const Format read = formatOf(from);
    const Format written = formatOf(to);
    const Extent extentWritten = extentAt(to, written, read, extent);
    if (isEmpty(extent)) return;
    if (isEmpty(extentWritten)) return context.raise(GL_INVALID_VALUE);
    takeHostError(context);
    NameTable &names = context.shared->textures.names;
    const PackedPixels packed;
    std::vector<GLubyte> bytes(static_cast<size_t>(read.size(extent)));
    {
        const Between between(names, read, extent);
        copyOnHost(from, between.end(), extent);
        if (const GLenum error = hostGl().getError(); error != GL_NO_ERROR) return context.raise(error);
        between.read(bytes);
    }
    const Between between(names, written, extentWritten);
    between.write(bytes);
    copyOnHost(between.end(), to, extentWritten);
}

bool isDetour(const EsContext &context, const End &from, const End &to) {
    const bool mayHoldBlocks = context.shared->textures.mayHoldBlocks.load(std::memory_order_relaxed);
    if (!mayHoldBlocks || from.name == 0 || to.name == 0) return false;
    return context.host.carries(45, "GL_ARB_direct_state_access") && isDetour(formatOf(from), formatOf(to));
}

// Replaces the application's name by the host's.
void findOnHost(const EsContext &context, End &end) {
    const ShareGroup &shared = *context.shared;
    const NameTable &names = end.target == GL_RENDERBUFFER ? shared.renderbuffers : shared.textures.names;
    end.name = names.find(end.name);
    if (end.target != GL_RENDERBUFFER) return;
    const auto texture = shared.renderbufferImages.textures.find(end.name);
    if (texture) end = {*texture, GL_TEXTURE_2D, end.level, end.x, end.y, end.z};
}

} // namespace

namespace overrides {

void GL_APIENTRY copyImageSubData(GLuint srcName, GLenum srcTarget, GLint srcLevel, GLint srcX, GLint srcY, GLint srcZ,
                                  GLuint dstName, GLenum dstTarget, GLint dstLevel, GLint dstX, GLint dstY, GLint dstZ,
                                  GLsizei srcWidth, GLsizei srcHeight, GLsizei srcDepth) {
    EsContext *const context = EsContext::current();
    End from = {srcName, hostTarget(srcTarget), srcLevel, srcX, srcY, srcZ};
    End to = {dstName, hostTarget(dstTarget), dstLevel, dstX, dstY, dstZ};
    const Extent extent = {srcWidth, srcHeight, srcDepth};
    if (!context) return copyOnHost(from, to, extent);
    findOnHost(*context, from);
    findOnHost(*context, to);
    if (!isDetour(*context, from, to)) return copyOnHost(from, to, extent);
    try {
        copyThroughMemory(*context, from, to, extent);
    } catch (const std::bad_alloc &) {
        context->raise(GL_OUT_OF_MEMORY);
    }
}

} // namespace overrides
