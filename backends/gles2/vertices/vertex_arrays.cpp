// A core context cannot draw without a vertex array object; ES draws from object 0, which an object of this library
// replaces. Arrays in client memory are recorded here and copied to the host at the draw.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "host_types.h"

namespace {

// Records an array in client memory, which is set on the host at the draw; sets any other.
// set: the host's function of the call, called with the pointer.
template <typename Set>
void setPointer(GLuint index, const VertexFormat &format, const void *pointer, Set set) {
    EsContext *const context = EsContext::current();
    if (!context) return set(pointer);
    if (isBeyondAttribs(index)) return;
    Vertices &vertices = context->vertices;
    const bool isClient = vertices.arrayBuffer == 0 && vertices.takesClientMemory();
    const bool isGood = vertices.takesFormat(index, format);
    if (!isClient || !isGood) set(isClient ? nullptr : pointer);
    // A malformed call leaves the array unchanged, since the host generates an error.
    if (!isGood) return vertices.bound->layout.invalidate();
    if (isClient || vertices.arrayBuffer || !pointer) {
        vertices.bound->setArray(index, format, pointer, vertices.arrayBuffer);
    }
}

// For an array in client memory the host would report the stream buffer. Nothing if the host's value is correct.
std::optional<GLint> ownAnswer(const EsContext &context, GLuint index, GLenum pname) {
    if (index >= context.vertices.maxAttribs) return std::nullopt;
    const VertexArrayState &state = *context.vertices.bound;
    const VertexArrayState::Attrib &attrib = state.attribs[index];
    if (pname == GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING) {
        const GLuint buffer = state.bindings[attrib.binding].buffer;
        return static_cast<GLint>(context.shared->buffers.names.nameOf(buffer));
    }
    if (!state.isClient(index)) return std::nullopt;
    switch (pname) {
    case GL_VERTEX_ATTRIB_ARRAY_SIZE:
        return attrib.format.size;
    case GL_VERTEX_ATTRIB_ARRAY_TYPE:
        return static_cast<GLint>(attrib.format.type);
    case GL_VERTEX_ATTRIB_ARRAY_NORMALIZED:
        return attrib.format.isNormalized;
    case GL_VERTEX_ATTRIB_ARRAY_INTEGER:
        return attrib.format.isInteger;
    case GL_VERTEX_ATTRIB_ARRAY_STRIDE:
        return attrib.format.stride;
    default:
        return std::nullopt;
    }
}

// Raises the error and returns true for object 0, which has no bindings other than those of its arrays.
bool isRefusedOnObjectZero() {
    EsContext *const context = EsContext::current();
    const bool isRefused = context && context->vertices.bound == &context->vertices.objectZero;
    if (isRefused) context->raise(GL_INVALID_OPERATION);
    return isRefused;
}

template <typename Value, typename Ask>
void getAttrib(GLuint index, GLenum pname, Value *params, Ask ask) {
    if (isBeyondAttribs(index)) return;
    const EsContext *const context = EsContext::current();
    const auto answer = context && params ? ownAnswer(*context, index, pname) : std::nullopt;
    if (!answer) return ask(index, pname, params);
    *params = static_cast<Value>(*answer);
}

} // namespace

namespace overrides {

void GL_APIENTRY bindVertexArray(GLuint array) {
    EsContext *const context = EsContext::current();
    const HostGl &gl = hostGl();
    if (!context) return gl.bindVertexArray(array);
    gl.bindVertexArray(array == 0 ? context->vertices.defaultObject : array);
    if (array == 0) {
        context->vertices.bound = &context->vertices.objectZero;
        return;
    }
    auto found = context->vertices.objects.find(array);
    if (found == context->vertices.objects.end()) {
        // The host generates an error for unknown names.
        if (!gl.isVertexArray(array)) return;
        found = context->vertices.objects.try_emplace(array).first;
    }
    context->vertices.bound = &found->second;
}

void GL_APIENTRY deleteVertexArrays(GLsizei n, const GLuint *arrays) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || !arrays) return gl.deleteVertexArrays(n, arrays);
    for (GLsizei index = 0; index < n; ++index) {
        const auto found = context->vertices.objects.find(arrays[index]);
        if (found == context->vertices.objects.end()) continue;
        // Deleting the bound object binds object 0.
        if (context->vertices.bound == &found->second) bindVertexArray(0);
        context->vertices.objects.erase(found);
    }
    gl.deleteVertexArrays(n, arrays);
}

void GL_APIENTRY enableVertexAttribArray(GLuint index) {
    if (isBeyondAttribs(index)) return;
    hostGl().enableVertexAttribArray(index);
    EsContext *const context = EsContext::current();
    if (context) context->vertices.bound->enabledAttribs |= 1u << index;
}

void GL_APIENTRY disableVertexAttribArray(GLuint index) {
    if (isBeyondAttribs(index)) return;
    hostGl().disableVertexAttribArray(index);
    EsContext *const context = EsContext::current();
    if (context) context->vertices.bound->enabledAttribs &= ~(1u << index);
}

void GL_APIENTRY vertexAttribPointer(GLuint index, GLint size, GLenum type, GLboolean normalized, GLsizei stride,
                                     const void *pointer) {
    type = hostType(type);
    setPointer(index, {size, type, normalized, false, stride}, pointer,
               [&](const void *seen) { hostGl().vertexAttribPointer(index, size, type, normalized, stride, seen); });
}

void GL_APIENTRY vertexAttribIPointer(GLuint index, GLint size, GLenum type, GLsizei stride, const void *pointer) {
    setPointer(index, {size, type, GL_FALSE, true, stride}, pointer,
               [&](const void *seen) { hostGl().vertexAttribIPointer(index, size, type, stride, seen); });
}

void GL_APIENTRY vertexAttribDivisor(GLuint index, GLuint divisor) {
    if (isBeyondAttribs(index)) return;
    hostGl().vertexAttribDivisor(index, divisor);
    EsContext *const context = EsContext::current();
    if (!context || index >= context->vertices.maxAttribs) return;
    VertexArrayState &state = *context->vertices.bound;
    state.setDivisor(index, divisor);
    if (state.attribs[index].binding != index) {
        state.attribs[index].pointer = nullptr;
        state.setBinding(index, index);
    }
}

void GL_APIENTRY vertexAttribFormat(GLuint index, GLint size, GLenum type, GLboolean normalized, GLuint offset) {
    if (!isRefusedOnObjectZero() && !isBeyondAttribs(index))
        hostGl().vertexAttribFormat(index, size, hostType(type), normalized, offset);
}

void GL_APIENTRY vertexAttribIFormat(GLuint index, GLint size, GLenum type, GLuint offset) {
    if (!isRefusedOnObjectZero() && !isBeyondAttribs(index)) hostGl().vertexAttribIFormat(index, size, type, offset);
}

void GL_APIENTRY vertexAttribBinding(GLuint index, GLuint binding) {
    if (isRefusedOnObjectZero() || isBeyondAttribs(index)) return;
    hostGl().vertexAttribBinding(index, binding);
    EsContext *const context = EsContext::current();
    if (!context || index >= context->vertices.maxAttribs || binding >= context->vertices.maxAttribs) return;
    VertexArrayState &state = *context->vertices.bound;
    if (state.attribs[index].binding != binding) state.attribs[index].pointer = nullptr;
    state.setBinding(index, binding);
}

void GL_APIENTRY vertexBindingDivisor(GLuint binding, GLuint divisor) {
    if (isRefusedOnObjectZero()) return;
    hostGl().vertexBindingDivisor(binding, divisor);
    EsContext *const context = EsContext::current();
    if (context && binding < context->vertices.maxAttribs) context->vertices.bound->bindings[binding].divisor = divisor;
}

void GL_APIENTRY getVertexAttribPointerv(GLuint index, GLenum pname, void **pointer) {
    if (isBeyondAttribs(index)) return;
    hostGl().getVertexAttribPointerv(index, pname, pointer);
    const EsContext *const context = EsContext::current();
    if (!context || pname != GL_VERTEX_ATTRIB_ARRAY_POINTER || !pointer || index >= context->vertices.maxAttribs)
        return;
    const VertexArrayState &state = *context->vertices.bound;
    if (state.isClient(index)) *pointer = const_cast<std::byte *>(state.attribs[index].pointer);
}

void GL_APIENTRY getVertexAttribiv(GLuint index, GLenum pname, GLint *params) {
    getAttrib(index, pname, params, hostGl().getVertexAttribiv);
}

void GL_APIENTRY getVertexAttribfv(GLuint index, GLenum pname, GLfloat *params) {
    getAttrib(index, pname, params, hostGl().getVertexAttribfv);
}

void GL_APIENTRY getVertexAttribIiv(GLuint index, GLenum pname, GLint *params) {
    getAttrib(index, pname, params, hostGl().getVertexAttribIiv);
}

void GL_APIENTRY getVertexAttribIuiv(GLuint index, GLenum pname, GLuint *params) {
    getAttrib(index, pname, params, hostGl().getVertexAttribIuiv);
}

} // namespace overrides
