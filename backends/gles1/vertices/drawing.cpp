// Draw calls: arrays that the host cannot hold are uploaded first, vertices of the matrix palette are transformed, and
// points with sizes of their own are drawn in runs of one size.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "vertices/array_upload.h"
#include "vertices/index_list.h"
#include "vertices/skinning.h"

#include <limits>

namespace {

bool hasPointSizes(const EsContext &context, GLenum mode) {
    return mode == GL_POINTS && context.vertices.arrays.bound().pointSizes.isOn;
}

bool isPlain(const EsContext &context, GLenum mode) {
    return !hasPointSizes(context, mode) && !isSkinning(context) &&
           !drawsFromOwnArrays(context.vertices.arrays.bound());
}

// False after an error. Desktop OpenGL has modes that ES 1 lacks.
bool beginDraw(EsContext &context, GLenum mode) {
    if (mode > GL_TRIANGLE_FAN) {
        context.raise(GL_INVALID_ENUM);
        return false;
    }
    ::beginDraw(context.renderMode);
    return true;
}

// vertexOf: the vertex at a place of the list. draw: draws the given number of places from a place on.
template <typename VertexOf, typename Draw>
void drawPoints(const EsContext &context, const VerticesRead &vertices, GLsizei count, VertexOf vertexOf, Draw draw) {
    const HostGl &gl = hostGl();
    const std::vector<GLfloat> sizes = readNumbers(context.vertices.arrays.bound().pointSizes.array, vertices);
    const auto sizeAt = [&](GLsizei place) { return sizes[vertexOf(place) - vertices.first]; };
    GLfloat before = 1;
    gl.getFloatv(GL_POINT_SIZE, &before);
    for (GLsizei start = 0; start < count;) {
        const GLfloat size = sizeAt(start);
        GLsizei end = start + 1;
        while (end < count && sizeAt(end) == size)
            ++end;
        // The host generates an error for sizes of 0 and below; the smallest positive number draws the smallest point.
        gl.pointSize(std::max(std::numeric_limits<GLfloat>::min(), size));
        draw(start, end - start);
        start = end;
    }
    gl.pointSize(before);
}

void drawOwnArrays(EsContext &context, GLenum mode, GLint first, GLsizei count) {
    const HostGl &gl = hostGl();
    const auto vertices = verticesInRow(first, count);
    if (!vertices) return context.raise(GL_OUT_OF_MEMORY);
    std::optional<SkinnedArrays> skinned;
    if (isSkinning(context)) skinned.emplace(context, *vertices);
    if (!uploadOwnArrays(context, *vertices)) return context.raise(GL_OUT_OF_MEMORY);
    if (!hasPointSizes(context, mode)) return gl.drawArrays(mode, first, count);
    drawPoints(
        context, *vertices, count, [&](GLsizei place) { return static_cast<GLuint>(first + place); },
        [&](GLsizei start, GLsizei length) { gl.drawArrays(mode, first + start, length); });
}

void drawOwnElements(EsContext &context, GLenum mode, GLsizei count, GLenum type, const void *indices) {
    const HostGl &gl = hostGl();
    const auto list = readIndices(count, type, indices);
    if (!list) return context.raise(GL_INVALID_OPERATION);
    const auto vertices = verticesOf(*list);
    if (!vertices) return context.raise(GL_OUT_OF_MEMORY);
    std::optional<SkinnedArrays> skinned;
    if (isSkinning(context)) skinned.emplace(context, *vertices);
    if (!uploadOwnArrays(context, *vertices)) return context.raise(GL_OUT_OF_MEMORY);
    if (!hasPointSizes(context, mode)) return gl.drawElements(mode, count, type, indices);
    const auto *const bytes = static_cast<const char *>(indices);
    drawPoints(
        context, *vertices, count, [&](GLsizei place) { return (*list)[static_cast<size_t>(place)]; },
        [&](GLsizei start, GLsizei length) {
            gl.drawElements(mode, length, type, bytes + static_cast<ptrdiff_t>(start) * indexSize(type));
        });
}

} // namespace

namespace overrides {

void GL_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count) {
    EsContext *const context = EsContext::current();
    if (context && !beginDraw(*context, mode)) return;
    const bool isWellFormed = first >= 0 && count > 0;
    if (!context || !isWellFormed || isPlain(*context, mode)) return hostGl().drawArrays(mode, first, count);
    reportingMemory(*context, [&] { drawOwnArrays(*context, mode, first, count); });
}

void GL_APIENTRY drawElements(GLenum mode, GLsizei count, GLenum type, const void *indices) {
    EsContext *const context = EsContext::current();
    if (context && !beginDraw(*context, mode)) return;
    const bool isWellFormed = count > 0 && indexSize(type) != 0;
    if (!context || !isWellFormed || isPlain(*context, mode)) return hostGl().drawElements(mode, count, type, indices);
    reportingMemory(*context, [&] { drawOwnElements(*context, mode, count, type, indices); });
}

void GL_APIENTRY multiDrawArraysEXT(GLenum mode, const GLint *first, const GLsizei *count, GLsizei primcount) {
    if (primcount < 0) return raise(GL_INVALID_VALUE);
    for (GLsizei index = 0; first && count && index < primcount; ++index)
        if (count[index] != 0) drawArrays(mode, first[index], count[index]);
}

void GL_APIENTRY multiDrawElementsEXT(GLenum mode, const GLsizei *count, GLenum type, const void *const *indices,
                                      GLsizei primcount) {
    if (primcount < 0) return raise(GL_INVALID_VALUE);
    for (GLsizei index = 0; indices && count && index < primcount; ++index)
        if (count[index] != 0) drawElements(mode, count[index], type, indices[index]);
}

} // namespace overrides
