// Vertex arrays and index lists in the application's memory: a core context draws from buffers only, so what a draw
// reads is copied into a ring before it, and no more than that.
#pragma once

#include "common/index_size.h"
#include "context/es_context.h"

#include <cstdint>
#include <optional>

struct DrawnVertices {
    int64_t first;
    int64_t last;
    GLsizei instanceCount;
};

// Makes the arrays of the application's memory that the current program reads lie in the ring. One without memory is
// switched off for the draw. The object gets its own state back where an application can see it.
class FedVertices {
public:
    FedVertices(EsContext &context, const DrawnVertices &drawn);
    ~FedVertices();
    FedVertices(const FedVertices &) = delete;
    FedVertices &operator=(const FedVertices &) = delete;

    // False where the vertices do not exist or the host has no memory: there is nothing to draw then.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    uint32_t m_switchedOff = 0;
    bool m_isComplete = true;
};

struct IndexList {
    GLsizei count;
    GLenum type;
    const void *indices; // an offset where the object has an element buffer
};

// Lowest and highest index that the draw reads. Nothing when it reads none.
struct IndexRange {
    GLuint lowest;
    GLuint highest;
};
[[nodiscard]] std::optional<IndexRange> findIndexRange(EsContext &context, const IndexList &list);

// Makes an index list of the application's memory lie in the ring while it lives.
class FedIndices {
public:
    FedIndices(EsContext &context, const IndexList &list);
    ~FedIndices();
    FedIndices(const FedIndices &) = delete;
    FedIndices &operator=(const FedIndices &) = delete;

    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    // For the host's draw.
    [[nodiscard]] const void *indices() const { return m_indices; }

private:
    bool m_isFed = false;
    bool m_isComplete = true;
    const void *m_indices;
};
