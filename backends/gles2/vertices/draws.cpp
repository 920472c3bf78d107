// Drawing, with what has to be right before it: the render mode, and arrays and index lists in the application's
// memory. A draw from buffers alone costs a few comparisons.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "vertices/client_arrays.h"

namespace {

EsContext *prepare() {
    EsContext *const context = EsContext::current();
    if (context) beginDraw(context->renderMode);
    return context;
}

template <typename Draw>
void drawVertices(GLint first, GLsizei count, GLsizei instanceCount, Draw draw) {
    EsContext *const context = prepare();
    const bool isFed = !context || !context->vertices.bound->enabledClientAttribs();
    // What is malformed goes on as it is, and the host raises the error.
    if (isFed || first < 0 || count <= 0 || instanceCount <= 0) return draw();
    const FedVertices vertices(*context, {first, int64_t(first) + count - 1, instanceCount});
    if (vertices.isComplete()) draw();
}

// Arrays in the application's memory are fed for the vertices that the list names.
template <typename Draw>
void feedAndDraw(EsContext &context, const IndexList &list, GLsizei instanceCount, GLint baseVertex, Draw draw) {
    std::optional<FedVertices> vertices;
    if (context.vertices.bound->enabledClientAttribs()) {
        const auto range = findIndexRange(context, list);
        if (!range) return;
        vertices.emplace(context, DrawnVertices{int64_t(range->lowest) + baseVertex,
                                                int64_t(range->highest) + baseVertex, instanceCount});
        if (!vertices->isComplete()) return;
    }
    const FedIndices indices(context, list);
    if (indices.isComplete()) draw(indices.indices());
}

template <typename Draw>
void drawIndexed(const IndexList &list, GLsizei instanceCount, GLint baseVertex, Draw draw) {
    EsContext *const context = prepare();
    if (!context) return draw(list.indices);
    const VertexArrayState &state = *context->vertices.bound;
    if (state.elementBuffer && !state.enabledClientAttribs()) return draw(list.indices);
    // The host raises the error: for what is malformed, and for the objects of ES 3, which take no list of the
    // application's memory.
    const bool isWellFormed = list.count > 0 && instanceCount > 0 && indexSize(list.type) > 0;
    if (state.elementBuffer && !isWellFormed) return draw(list.indices);
    if (!context->vertices.takesClientMemory()) return draw(list.indices);
    // Without a buffer it would take them all for one and the same error.
    if (indexSize(list.type) == 0) return context->raise(GL_INVALID_ENUM);
    if (list.count < 0 || instanceCount < 0) return context->raise(GL_INVALID_VALUE);
    if (!isWellFormed || (!state.elementBuffer && !list.indices)) return;
    feedAndDraw(*context, list, instanceCount, baseVertex, draw);
}

} // namespace

namespace overrides {

void GL_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count) {
    drawVertices(first, count, 1, [&] { hostGl().drawArrays(mode, first, count); });
}

void GL_APIENTRY drawArraysIndirect(GLenum mode, const void *indirect) {
    prepare();
    hostGl().drawArraysIndirect(mode, indirect);
}

void GL_APIENTRY drawArraysInstanced(GLenum mode, GLint first, GLsizei count, GLsizei instanceCount) {
    drawVertices(first, count, instanceCount, [&] { hostGl().drawArraysInstanced(mode, first, count, instanceCount); });
}

void GL_APIENTRY drawElements(GLenum mode, GLsizei count, GLenum type, const void *indices) {
    drawIndexed({count, type, indices}, 1, 0,
                [&](const void *list) { hostGl().drawElements(mode, count, type, list); });
}

void GL_APIENTRY drawElementsBaseVertex(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                        GLint baseVertex) {
    drawIndexed({count, type, indices}, 1, baseVertex,
                [&](const void *list) { hostGl().drawElementsBaseVertex(mode, count, type, list, baseVertex); });
}

void GL_APIENTRY drawElementsIndirect(GLenum mode, GLenum type, const void *indirect) {
    prepare();
    hostGl().drawElementsIndirect(mode, type, indirect);
}

void GL_APIENTRY drawElementsInstanced(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                       GLsizei instanceCount) {
    drawIndexed({count, type, indices}, instanceCount, 0,
                [&](const void *list) { hostGl().drawElementsInstanced(mode, count, type, list, instanceCount); });
}

void GL_APIENTRY drawElementsInstancedBaseVertex(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                                 GLsizei instanceCount, GLint baseVertex) {
    drawIndexed({count, type, indices}, instanceCount, baseVertex, [&](const void *list) {
        hostGl().drawElementsInstancedBaseVertex(mode, count, type, list, instanceCount, baseVertex);
    });
}

void GL_APIENTRY drawRangeElements(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type,
                                   const void *indices) {
    drawIndexed({count, type, indices}, 1, 0,
                [&](const void *list) { hostGl().drawRangeElements(mode, start, end, count, type, list); });
}

void GL_APIENTRY drawRangeElementsBaseVertex(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type,
                                             const void *indices, GLint baseVertex) {
    drawIndexed({count, type, indices}, 1, baseVertex, [&](const void *list) {
        hostGl().drawRangeElementsBaseVertex(mode, start, end, count, type, list, baseVertex);
    });
}

} // namespace overrides
