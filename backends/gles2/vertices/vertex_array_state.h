// This library's state of a vertex array object: which arrays are in client memory, and where they are in the stream.
// Used on the thread of the context that owns it.
#pragma once

#include "vertices/stream_layout.h"
#include "vertices/vertex_format.h"

#include <array>
#include <cstdint>

struct VertexArrayState {
    static constexpr GLuint maxAttribs = 32;

    struct Attrib {
        const std::byte *pointer = nullptr; // without a buffer
        VertexFormat format;
        GLuint binding = 0;
    };
    struct Binding {
        GLuint buffer = 0; // the host's name; 0 for client memory
        GLuint divisor = 0;
        uint32_t attribs = 0; // bits of those that read it
    };

    VertexArrayState();

    // Sets an attribute as glVertexAttribPointer does: with the binding of its own index.
    void setArray(GLuint index, const VertexFormat &format, const void *pointer, GLuint buffer);
    void setBuffer(GLuint binding, GLuint buffer);
    void setBinding(GLuint attrib, GLuint binding);
    void setDivisor(GLuint binding, GLuint divisor);
    // Requires that the buffer is bound on the host.
    void setElementBuffer(GLuint buffer) {
        elementBuffer = buffer;
        streamedElementBuffer = 0;
    }
    // The effect of deleting a buffer on the bound vertex array object.
    void forgetBuffer(GLuint buffer);

    [[nodiscard]] bool isClient(GLuint attrib) const { return attrib < maxAttribs && (clientAttribs >> attrib & 1); }
    [[nodiscard]] uint32_t enabledClientAttribs() const { return enabledAttribs & clientAttribs; }

    // The fields that every draw reads come first.
    uint32_t enabledAttribs = 0;
    uint32_t clientAttribs = ~0u; // bits of the attributes whose binding has no buffer
    GLuint elementBuffer = 0;     // the host's name
    // This library's buffer that the host has bound while the application has none.
    GLuint streamedElementBuffer = 0;
    StreamLayout layout;
    std::array<Attrib, maxAttribs> attribs;
    std::array<Binding, maxAttribs> bindings;
};
