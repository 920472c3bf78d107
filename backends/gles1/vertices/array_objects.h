// Vertex arrays whose types the host lacks, and arrays that it lacks completely: point sizes, matrix indices and
// weights. Each vertex array object has its own.
#pragma once

#include "es_gl.h"

#include <map>

// The state of an array, as the application specified it.
struct OwnArray {
    GLint size = 4;
    GLenum type = GL_FLOAT;
    GLsizei stride = 0;
    const void *pointer = nullptr; // an offset if there is a buffer
    GLuint buffer = 0;             // 0 for client memory

    [[nodiscard]] GLsizei elementSize() const;
    [[nodiscard]] GLsizei distance() const { return stride == 0 ? elementSize() : stride; }
};

// The host's arrays: texture coordinate arrays are at the end, one per unit.
enum ArraySlot : unsigned { VertexSlot, NormalSlot, ColorSlot, TexCoordSlot };

// An array that the host lacks completely.
struct EsArray {
    OwnArray array;
    bool isOn = false;
};

struct ArrayObject {
    std::map<unsigned, OwnArray> own; // by slot
    EsArray pointSizes = {.array = {.size = 1}};
    EsArray matrixIndices = {.array = {.size = 0, .type = GL_UNSIGNED_BYTE}};
    EsArray weights = {.array = {.size = 0}};

    // By the array name of glEnableClientState. Null for arrays of the host.
    [[nodiscard]] EsArray *find(GLenum name);
};

class ArrayObjects {
public:
    [[nodiscard]] ArrayObject &bound() { return *m_bound; }
    [[nodiscard]] const ArrayObject &bound() const { return *m_bound; }
    [[nodiscard]] bool isDefaultBound() const { return m_bound == &m_default; }

    void bind(GLuint name);
    // Deleting the bound object binds the default one.
    void erase(GLuint name);

private:
    ArrayObject m_default;
    std::map<GLuint, ArrayObject> m_named;
    ArrayObject *m_bound = &m_default;
};
