// Vertex arrays and index lists in the application's memory: a core context draws from buffers only, so what a draw
// reads is copied into the stream before it, and no more than that.
#pragma once

#include "common/index_size.h"
#include "context/es_context.h"
#include "vertices/index_range.h"

// Makes the arrays of the application's memory that the current program reads lie in the stream. One without memory is
// switched off while this lives. The object gets its own state back where an application can see it.
class FedVertices {
public:
    FedVertices(EsContext &context, const DrawnVertices &drawn);
    ~FedVertices();
    FedVertices(const FedVertices &) = delete;
    FedVertices &operator=(const FedVertices &) = delete;

    // False where the vertices do not exist or the host has no memory: there is nothing to draw then.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    // What the draw has to add to the number of each vertex.
    [[nodiscard]] GLint shift() const { return m_shift; }

private:
    uint32_t m_switchedOff = 0;
    GLint m_shift = 0;
    bool m_isComplete = true;
};

// The usual case of the above, in line: the arrays go on in the slots that are there. The slot of the first vertex.
[[nodiscard]] inline std::optional<int64_t> putIntoNextSlots(EsContext &context, int64_t first, int64_t count) {
    Vertices &vertices = context.vertices;
    VertexArrayState &state = *vertices.bound;
    const ProgramInputs inputs = context.programs.inputs(context.shared->programs);
    const bool isShiftable = !(state.enabledAttribs & ~state.clientAttribs & inputs.attribs) && !inputs.readsVertexId;
    const bool isUsual =
        isShiftable && first >= 0 && vertices.stream.staysMapped() &&
        state.layout.fits(state, state.enabledClientAttribs() & inputs.attribs, count, vertices.stream);
    return isUsual ? state.layout.put(first, count, vertices.stream) : std::nullopt;
}

struct IndexList {
    GLsizei count;
    GLenum type;
    const void *indices; // an offset where the object has an element buffer

    [[nodiscard]] size_t size() const { return static_cast<size_t>(count) * static_cast<size_t>(indexSize(type)); }
};

// Of what the draw reads. Nothing when it reads none.
[[nodiscard]] std::optional<IndexRange> findIndexRange(EsContext &context, const IndexList &list);

// Makes an index list of the application's memory lie in the stream: what the host's draw takes as indices. Nothing
// when the host has no memory.
[[nodiscard]] std::optional<const void *> putIndices(EsContext &context, const IndexList &list);

// The host has a buffer of ours bound for indices while the application has none. Takes it away, for a call that the
// application could see it by.
void hideStreamedIndices(EsContext &context);
