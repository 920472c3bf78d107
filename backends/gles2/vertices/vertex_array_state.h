// What this library notes of a vertex array object: which arrays lie in the application's memory, and where they lie in
// the stream. Used on the thread of the context that owns it.
#pragma once

#include "vertices/stream_layout.h"
#include "vertices/vertex_format.h"

#include <array>
#include <cstdint>

struct VertexArrayState {
    static constexpr GLuint maxAttribs = 32;

    struct Attrib {
        const std::byte *pointer = nullptr; // where there is no buffer
        VertexFormat format;
        GLuint binding = 0;
    };
    struct Binding {
        GLuint buffer = 0; // the host's name; 0 for the application's memory
        GLuint divisor = 0;
        uint32_t attribs = 0; // bits of those that read it
    };

    VertexArrayState();

    // Sets an attrib up as glVertexAttribPointer does: by the binding of its own.
    void setArray(GLuint index, const VertexFormat &format, const void *pointer, GLuint buffer);
    void setBuffer(GLuint binding, GLuint buffer);
    void setBinding(GLuint attrib, GLuint binding);
    void setDivisor(GLuint binding, GLuint divisor);
    // The host has it bound.
    void setElementBuffer(GLuint buffer) {
        elementBuffer = buffer;
        streamedElementBuffer = 0;
    }
    // What deleting a buffer does to the array that is bound.
    void forgetBuffer(GLuint buffer);

    [[nodiscard]] bool isClient(GLuint attrib) const { return attrib < maxAttribs && (clientAttribs >> attrib & 1); }
    [[nodiscard]] uint32_t enabledClientAttribs() const { return enabledAttribs & clientAttribs; }

    // What every draw reads comes first.
    uint32_t enabledAttribs = 0;
    uint32_t clientAttribs = ~0u; // bits of the attribs whose binding has no buffer
    GLuint elementBuffer = 0;     // the host's name
    // Ours, which the host has bound while the application has none.
    GLuint streamedElementBuffer = 0;
    StreamLayout layout;
    std::array<Attrib, maxAttribs> attribs;
    std::array<Binding, maxAttribs> bindings;
};
