// What this library notes of a vertex array object: which arrays lie in the application's memory. Used on the thread of
// the context that owns it.
#pragma once

#include "es_gl.h"

#include <array>
#include <cstddef>
#include <cstdint>

struct VertexArrayState {
    static constexpr GLuint maxAttribs = 32;

    struct Attrib {
        const std::byte *pointer = nullptr; // where there is no buffer
        GLint size = 4;
        GLenum type = GL_FLOAT;
        GLboolean isNormalized = GL_FALSE;
        bool isInteger = false;
        GLsizei stride = 0; // as given; 0 means that elements lie one behind the other
        GLuint binding = 0;
    };
    struct Binding {
        GLuint buffer = 0; // the host's name
        GLuint divisor = 0;
    };

    VertexArrayState();

    // Sets the buffer of a binding; 0 means the application's memory.
    void setBuffer(GLuint binding, GLuint buffer);
    void setBinding(GLuint attrib, GLuint binding);
    // What deleting a buffer does to the array that is bound.
    void forgetBuffer(GLuint buffer);

    [[nodiscard]] bool isClient(GLuint attrib) const { return attrib < maxAttribs && (clientAttribs >> attrib & 1); }
    [[nodiscard]] uint32_t enabledClientAttribs() const { return enabledAttribs & clientAttribs; }

    std::array<Attrib, maxAttribs> attribs;
    std::array<Binding, maxAttribs> bindings;
    uint32_t enabledAttribs = 0;
    uint32_t clientAttribs = ~0u; // bits of the attribs whose binding has no buffer
    GLuint elementBuffer = 0;     // the host's name
};
