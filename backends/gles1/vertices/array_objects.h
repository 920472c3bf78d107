// Vertex arrays that the host cannot hold, since it lacks their types, and those that it lacks altogether: point sizes,
// matrix indices and weights. Each vertex array object has its own.
#pragma once

#include "es_gl.h"

#include <map>

// What is kept of an array: as the application gave it.
struct OwnArray {
    GLint size = 4;
    GLenum type = GL_FLOAT;
    GLsizei stride = 0;
    const void *pointer = nullptr; // an offset where there is a buffer
    GLuint buffer = 0;             // 0 for client memory

    [[nodiscard]] GLsizei elementSize() const;
    [[nodiscard]] GLsizei distance() const { return stride == 0 ? elementSize() : stride; }
};

// The host's arrays in one row: those of texture coordinates stand at the end, one a unit.
enum ArraySlot : unsigned { VertexSlot, NormalSlot, ColorSlot, TexCoordSlot };

// One that the host lacks altogether.
struct EsArray {
    OwnArray array;
    bool isOn = false;
};

struct ArrayObject {
    std::map<unsigned, OwnArray> own; // by slot
    EsArray pointSizes = {.array = {.size = 1}};
    EsArray matrixIndices = {.array = {.size = 0, .type = GL_UNSIGNED_BYTE}};
    EsArray weights = {.array = {.size = 0}};

    // By the name that glEnableClientState takes. Null for those of the host.
    [[nodiscard]] EsArray *find(GLenum name);
};

class ArrayObjects {
public:
    [[nodiscard]] ArrayObject &bound() { return *m_bound; }
    [[nodiscard]] const ArrayObject &bound() const { return *m_bound; }
    [[nodiscard]] bool isDefaultBound() const { return m_bound == &m_default; }

    void bind(GLuint name);
    // One that is bound gives way to the default.
    void erase(GLuint name);

private:
    ArrayObject m_default;
    std::map<GLuint, ArrayObject> m_named;
    ArrayObject *m_bound = &m_default;
};
