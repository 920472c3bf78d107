#include "vertices/vertex_array_state.h"

VertexArrayState::VertexArrayState() {
    for (GLuint index = 0; index < maxAttribs; ++index) {
        attribs[index].binding = index;
        bindings[index].attribs = 1u << index;
    }
}

void VertexArrayState::setArray(GLuint index, const VertexFormat &format, const void *pointer, GLuint buffer) {
    Attrib &attrib = attribs[index];
    const auto *const bytes = static_cast<const std::byte *>(pointer);
    const bool isSame = attrib.format == format && attrib.binding == index && bindings[index].buffer == buffer;
    if (isSame && attrib.pointer == bytes) return;
    attrib.pointer = bytes;
    // Applications often change only the pointers between draws.
    if (isSame) return layout.followPointers();
    attrib.format = format;
    setBinding(index, index);
    setBuffer(index, buffer);
}

void VertexArrayState::setBuffer(GLuint binding, GLuint buffer) {
    bindings[binding].buffer = buffer;
    const uint32_t bits = bindings[binding].attribs;
    clientAttribs = buffer ? clientAttribs & ~bits : clientAttribs | bits;
    layout.invalidate();
}

void VertexArrayState::setBinding(GLuint attrib, GLuint binding) {
    const uint32_t bit = 1u << attrib;
    bindings[attribs[attrib].binding].attribs &= ~bit;
    bindings[binding].attribs |= bit;
    attribs[attrib].binding = binding;
    clientAttribs = bindings[binding].buffer ? clientAttribs & ~bit : clientAttribs | bit;
    layout.invalidate();
}

void VertexArrayState::setDivisor(GLuint binding, GLuint divisor) {
    bindings[binding].divisor = divisor;
    layout.invalidate();
}

void VertexArrayState::forgetBuffer(GLuint buffer) {
    if (elementBuffer == buffer) elementBuffer = 0;
    for (GLuint binding = 0; binding < maxAttribs; ++binding) {
        if (bindings[binding].buffer != buffer) continue;
        setBuffer(binding, 0);
        // The attributes of a buffer have an offset, not an address.
        for (Attrib &attrib : attribs)
            if (attrib.binding == binding) attrib.pointer = nullptr;
    }
}
