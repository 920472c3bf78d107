#include "vertices/array_objects.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

GLsizei OwnArray::elementSize() const {
    switch (type) {
    case GL_BYTE:
    case GL_UNSIGNED_BYTE:
        return size;
    case GL_SHORT:
        return size * 2;
    default:
        return size * 4;
    }
}

EsArray *ArrayObject::find(GLenum name) {
    switch (name) {
    case GL_POINT_SIZE_ARRAY_OES:
        return &pointSizes;
    case GL_MATRIX_INDEX_ARRAY_OES:
        return &matrixIndices;
    case GL_WEIGHT_ARRAY_OES:
        return &weights;
    default:
        return nullptr;
    }
}

void ArrayObjects::bind(GLuint name) {
    m_bound = name == 0 ? &m_default : &m_named[name];
}

void ArrayObjects::erase(GLuint name) {
    const auto found = m_named.find(name);
    if (found == m_named.end()) return;
    if (m_bound == &found->second) m_bound = &m_default;
    m_named.erase(found);
}

namespace overrides {

void GL_APIENTRY bindVertexArrayOES(GLuint array) {
    hostGl().bindVertexArray(array);
    EsContext *const context = EsContext::current();
    if (!context) return;
    // Queried, since the host may have rejected the name.
    GLint bound = 0;
    hostGl().getIntegerv(GL_VERTEX_ARRAY_BINDING_OES, &bound);
    if (static_cast<GLuint>(bound) == array) reportingMemory(*context, [&] { context->vertices.arrays.bind(array); });
}

void GL_APIENTRY deleteVertexArraysOES(GLsizei n, const GLuint *arrays) {
    hostGl().deleteVertexArrays(n, arrays);
    EsContext *const context = EsContext::current();
    for (GLsizei index = 0; context && arrays && index < n; ++index)
        context->vertices.arrays.erase(arrays[index]);
}

} // namespace overrides
