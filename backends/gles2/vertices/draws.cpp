// Draw calls, with the state that they need: the render mode, and arrays and index lists in client memory. A draw from
// buffers only costs a few comparisons.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "vertices/client_arrays.h"

namespace {

bool isPipelineRefused(EsContext *context) {
    return context && context->programs.isPipelineBroken(context->shared->programs);
}

// Indirect draws require buffers, and a vertex array object other than 0.
bool isIndirectRefused(EsContext &context) {
    if (isPipelineRefused(&context)) return true;
    const Vertices &vertices = context.vertices;
    return vertices.bound == &vertices.objectZero || vertices.bound->enabledClientAttribs();
}

EsContext *prepare() {
    EsContext *const context = EsContext::current();
    if (context) beginDraw(context->renderMode);
    return context;
}

// draw: called with the number of the first vertex.
template <typename Draw>
void drawVertices(GLint first, GLsizei count, GLsizei instanceCount, Draw draw, GLuint firstInstance = 0) {
    EsContext *const context = prepare();
    if (isPipelineRefused(context)) return context->raise(GL_INVALID_OPERATION);
    const bool isFed = context && context->vertices.bound->enabledClientAttribs();
    // Malformed calls are passed on, so the host raises the error.
    if (!isFed || first < 0 || count <= 0 || instanceCount <= 0) return draw(first);
    if (StreamLayout *const layout = usualLayout(*context, count)) {
        const auto slot = layout->put(first, count, context->vertices.stream);
        return draw(static_cast<GLint>(*slot));
    }
    const FedVertices vertices(*context, {first, count, instanceCount, firstInstance});
    if (vertices.isComplete()) draw(first + vertices.shift());
}

// An indexed draw. baseVertex is added to each index.
struct IndexedDraw {
    GLenum mode;
    IndexList list;
    GLsizei instanceCount = 1;
    GLint baseVertex = 0;
    GLuint firstInstance = 0;
};

// Copies arrays in client memory for the vertices in the list.
// draw: called with the indices and the value to add to each.
template <typename Draw>
void feedAndDraw(EsContext &context, const IndexedDraw &call, Draw draw) {
    const auto &[mode, list, instanceCount, baseVertex, firstInstance] = call;
    const auto drawList = [&](GLint base) {
        if (const auto indices = putIndices(context, call.list)) draw(*indices, base);
    };
    if (!context.vertices.bound->enabledClientAttribs()) return drawList(baseVertex);
    const auto slot = firstInstance == 0 ? gatherVertices(context, list, baseVertex) : std::nullopt;
    if (slot) {
        const auto first = static_cast<GLint>(*slot);
        if (instanceCount == 1) return hostGl().drawArrays(mode, first, list.count);
        return hostGl().drawArraysInstanced(mode, first, list.count, instanceCount);
    }
    const auto range = findIndexRange(context, list);
    if (!range) return;
    const int64_t first = int64_t(range->lowest) + baseVertex;
    const int64_t count = int64_t(range->highest) - range->lowest + 1;
    const FedVertices vertices(context, {first, count, instanceCount, firstInstance});
    if (vertices.isComplete()) drawList(baseVertex + vertices.shift());
}

// draw: the host's function for the call. drawAt: the one that adds a value to each index.
template <typename Draw, typename DrawAt>
void drawIndexed(const IndexedDraw &call, Draw draw, DrawAt drawAt) {
    const auto &[mode, list, instanceCount, baseVertex, firstInstance] = call;
    EsContext *const context = prepare();
    if (!context) return draw();
    if (isPipelineRefused(context)) return context->raise(GL_INVALID_OPERATION);
    const VertexArrayState &state = *context->vertices.bound;
    if (state.elementBuffer && !state.enabledClientAttribs()) return draw();
    // The host raises the error for malformed calls, and for vertex array objects of ES 3, which do not accept client
    // memory.
    const bool isWellFormed = list.count > 0 && instanceCount > 0 && indexSize(list.type) > 0;
    if (state.elementBuffer && !isWellFormed) return draw();
    if (!context->vertices.takesClientMemory()) return draw();
    // Without a buffer the host would generate the same error for all of these.
    if (indexSize(list.type) == 0) return context->raise(GL_INVALID_ENUM);
    if (list.count < 0 || instanceCount < 0) return context->raise(GL_INVALID_VALUE);
    // Draws nothing, but the host checks its state.
    if (!isWellFormed) return hostGl().drawArrays(mode, 0, 0);
    if (!state.elementBuffer && !list.indices) return;
    feedAndDraw(*context, call, drawAt);
}

} // namespace

namespace overrides {

void GL_APIENTRY drawArrays(GLenum mode, GLint first, GLsizei count) {
    drawVertices(first, count, 1, [&](GLint from) { hostGl().drawArrays(mode, from, count); });
}

void GL_APIENTRY drawArraysIndirect(GLenum mode, const void *indirect) {
    EsContext *const context = prepare();
    if (context && isIndirectRefused(*context)) return context->raise(GL_INVALID_OPERATION);
    hostGl().drawArraysIndirect(mode, indirect);
}

void GL_APIENTRY drawArraysInstanced(GLenum mode, GLint first, GLsizei count, GLsizei instanceCount) {
    drawVertices(first, count, instanceCount,
                 [&](GLint from) { hostGl().drawArraysInstanced(mode, from, count, instanceCount); });
}

void GL_APIENTRY drawArraysInstancedBaseInstance(GLenum mode, GLint first, GLsizei count, GLsizei instanceCount,
                                                 GLuint firstInstance) {
    const auto draw = [&](GLint from) {
        hostGl().drawArraysInstancedBaseInstance(mode, from, count, instanceCount, firstInstance);
    };
    drawVertices(first, count, instanceCount, draw, firstInstance);
}

void GL_APIENTRY drawElements(GLenum mode, GLsizei count, GLenum type, const void *indices) {
    drawIndexed(
        {mode, {count, type, indices}}, [&] { hostGl().drawElements(mode, count, type, indices); },
        [&](const void *list, GLint base) { hostGl().drawElementsBaseVertex(mode, count, type, list, base); });
}

void GL_APIENTRY drawElementsBaseVertex(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                        GLint baseVertex) {
    const auto draw = [&](const void *list, GLint base) {
        hostGl().drawElementsBaseVertex(mode, count, type, list, base);
    };
    drawIndexed(
        {mode, {count, type, indices}, 1, baseVertex}, [&] { draw(indices, baseVertex); }, draw);
}

void GL_APIENTRY drawElementsIndirect(GLenum mode, GLenum type, const void *indirect) {
    if (EsContext *const context = prepare()) {
        if (isIndirectRefused(*context)) return context->raise(GL_INVALID_OPERATION);
        hideStreamedIndices(*context);
    }
    hostGl().drawElementsIndirect(mode, type, indirect);
}

void GL_APIENTRY drawElementsInstanced(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                       GLsizei instanceCount) {
    const HostGl &gl = hostGl();
    drawIndexed(
        {mode, {count, type, indices}, instanceCount},
        [&] { gl.drawElementsInstanced(mode, count, type, indices, instanceCount); },
        [&](const void *list, GLint base) {
            gl.drawElementsInstancedBaseVertex(mode, count, type, list, instanceCount, base);
        });
}

void GL_APIENTRY drawElementsInstancedBaseVertex(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                                 GLsizei instanceCount, GLint baseVertex) {
    const auto draw = [&](const void *list, GLint base) {
        hostGl().drawElementsInstancedBaseVertex(mode, count, type, list, instanceCount, base);
    };
    drawIndexed(
        {mode, {count, type, indices}, instanceCount, baseVertex}, [&] { draw(indices, baseVertex); }, draw);
}

void GL_APIENTRY drawElementsInstancedBaseInstance(GLenum mode, GLsizei count, GLenum type, const void *indices,
                                                   GLsizei instanceCount, GLuint firstInstance) {
    drawElementsInstancedBaseVertexBaseInstance(mode, count, type, indices, instanceCount, 0, firstInstance);
}

void GL_APIENTRY drawElementsInstancedBaseVertexBaseInstance(GLenum mode, GLsizei count, GLenum type,
                                                             const void *indices, GLsizei instanceCount,
                                                             GLint baseVertex, GLuint firstInstance) {
    const auto draw = [&](const void *list, GLint base) {
        hostGl().drawElementsInstancedBaseVertexBaseInstance(mode, count, type, list, instanceCount, base,
                                                             firstInstance);
    };
    drawIndexed(
        {mode, {count, type, indices}, instanceCount, baseVertex, firstInstance}, [&] { draw(indices, baseVertex); },
        draw);
}

void GL_APIENTRY drawRangeElements(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type,
                                   const void *indices) {
    const HostGl &gl = hostGl();
    drawIndexed(
        {mode, {count, type, indices}}, [&] { gl.drawRangeElements(mode, start, end, count, type, indices); },
        [&](const void *list, GLint base) {
            gl.drawRangeElementsBaseVertex(mode, start, end, count, type, list, base);
        });
}

void GL_APIENTRY drawRangeElementsBaseVertex(GLenum mode, GLuint start, GLuint end, GLsizei count, GLenum type,
                                             const void *indices, GLint baseVertex) {
    const auto draw = [&](const void *list, GLint base) {
        hostGl().drawRangeElementsBaseVertex(mode, start, end, count, type, list, base);
    };
    drawIndexed(
        {mode, {count, type, indices}, 1, baseVertex}, [&] { draw(indices, baseVertex); }, draw);
}

} // namespace overrides
