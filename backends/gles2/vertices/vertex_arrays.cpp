// A core context draws nothing while no vertex array object is bound; ES draws from object 0. An object of our own
// stands for it. Arrays in the application's memory are noted here and reach the host when they are drawn.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "host_types.h"
#include "vertices/vertex_format.h"

namespace {

using Attrib = VertexArrayState::Attrib;

// Notes the array if the host has no fault to find.
void note(EsContext &context, GLuint index, Attrib attrib) {
    if (index >= VertexArrayState::maxAttribs) return;
    VertexArrayState &state = *context.vertices.bound;
    attrib.binding = index;
    state.attribs[index] = attrib;
    state.setBuffer(index, context.vertices.arrayBuffer);
    state.setBinding(index, index);
}

// The host sees an empty ring until the draw: it has to judge the format, and a null pointer passes without a buffer.
template <typename Set>
void setPointer(GLuint index, const Attrib &attrib, Set set) {
    EsContext *const context = EsContext::current();
    const void *const pointer = attrib.pointer;
    if (!context) return set(pointer);
    const bool isClient = context->vertices.arrayBuffer == 0 && context->vertices.takesClientMemory();
    const bool isGood =
        index < context->vertices.maxAttribs && attrib.stride >= 0 && vertexSize(attrib.size, attrib.type) > 0;
    set(isClient ? nullptr : pointer);
    if (isGood && (isClient || context->vertices.arrayBuffer || !pointer)) note(*context, index, attrib);
}

// What the host would tell is the ring's.
template <typename Value, typename Ask>
void getAttrib(GLuint index, GLenum pname, Value *params, Ask ask) {
    const EsContext *const context = EsContext::current();
    ask(index, pname, params);
    if (!context || pname != GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING || !params) return;
    if (index >= context->vertices.maxAttribs) return;
    const VertexArrayState &state = *context->vertices.bound;
    *params =
        static_cast<Value>(context->shared->buffers.names.nameOf(state.bindings[state.attribs[index].binding].buffer));
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
        // The host refuses names that it did not make.
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
        // Deleting what is bound binds object 0.
        if (context->vertices.bound == &found->second) bindVertexArray(0);
        context->vertices.objects.erase(found);
    }
    gl.deleteVertexArrays(n, arrays);
}

void GL_APIENTRY enableVertexAttribArray(GLuint index) {
    hostGl().enableVertexAttribArray(index);
    EsContext *const context = EsContext::current();
    if (context && index < context->vertices.maxAttribs) context->vertices.bound->enabledAttribs |= 1u << index;
}

void GL_APIENTRY disableVertexAttribArray(GLuint index) {
    hostGl().disableVertexAttribArray(index);
    EsContext *const context = EsContext::current();
    if (context && index < context->vertices.maxAttribs) context->vertices.bound->enabledAttribs &= ~(1u << index);
}

void GL_APIENTRY vertexAttribPointer(GLuint index, GLint size, GLenum type, GLboolean normalized, GLsizei stride,
                                     const void *pointer) {
    type = hostType(type);
    setPointer(index, {static_cast<const std::byte *>(pointer), size, type, normalized, false, stride},
               [&](const void *seen) { hostGl().vertexAttribPointer(index, size, type, normalized, stride, seen); });
}

void GL_APIENTRY vertexAttribIPointer(GLuint index, GLint size, GLenum type, GLsizei stride, const void *pointer) {
    setPointer(index, {static_cast<const std::byte *>(pointer), size, type, GL_FALSE, true, stride},
               [&](const void *seen) { hostGl().vertexAttribIPointer(index, size, type, stride, seen); });
}

void GL_APIENTRY vertexAttribDivisor(GLuint index, GLuint divisor) {
    hostGl().vertexAttribDivisor(index, divisor);
    EsContext *const context = EsContext::current();
    if (!context || index >= context->vertices.maxAttribs) return;
    VertexArrayState &state = *context->vertices.bound;
    state.bindings[index].divisor = divisor;
    if (state.attribs[index].binding != index) {
        state.attribs[index].pointer = nullptr;
        state.setBinding(index, index);
    }
}

void GL_APIENTRY vertexAttribBinding(GLuint index, GLuint binding) {
    hostGl().vertexAttribBinding(index, binding);
    EsContext *const context = EsContext::current();
    if (!context || index >= context->vertices.maxAttribs || binding >= context->vertices.maxAttribs) return;
    VertexArrayState &state = *context->vertices.bound;
    if (state.attribs[index].binding != binding) state.attribs[index].pointer = nullptr;
    state.setBinding(index, binding);
}

void GL_APIENTRY vertexBindingDivisor(GLuint binding, GLuint divisor) {
    hostGl().vertexBindingDivisor(binding, divisor);
    EsContext *const context = EsContext::current();
    if (context && binding < context->vertices.maxAttribs) context->vertices.bound->bindings[binding].divisor = divisor;
}

void GL_APIENTRY getVertexAttribPointerv(GLuint index, GLenum pname, void **pointer) {
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
