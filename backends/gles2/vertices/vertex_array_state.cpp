#include "vertices/vertex_array_state.h"

VertexArrayState::VertexArrayState() {
    for (GLuint attrib = 0; attrib < maxAttribs; ++attrib)
        attribs[attrib].binding = attrib;
}

void VertexArrayState::setBuffer(GLuint binding, GLuint buffer) {
    bindings[binding].buffer = buffer;
    for (GLuint attrib = 0; attrib < maxAttribs; ++attrib) {
        if (attribs[attrib].binding == binding) setBinding(attrib, binding);
    }
}

void VertexArrayState::setBinding(GLuint attrib, GLuint binding) {
    attribs[attrib].binding = binding;
    const uint32_t bit = 1u << attrib;
    clientAttribs = bindings[binding].buffer ? clientAttribs & ~bit : clientAttribs | bit;
}

void VertexArrayState::forgetBuffer(GLuint buffer) {
    if (elementBuffer == buffer) elementBuffer = 0;
    for (GLuint binding = 0; binding < maxAttribs; ++binding) {
        if (bindings[binding].buffer == buffer) setBuffer(binding, 0);
    }
}
