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

struct IndexList {
    GLsizei count;
    GLenum type;
    const void *indices; // an offset where the object has an element buffer

    [[nodiscard]] size_t size() const { return static_cast<size_t>(count) * static_cast<size_t>(indexSize(type)); }
};

// Of what the draw reads. Nothing when it reads none.
[[nodiscard]] std::optional<IndexRange> findIndexRange(EsContext &context, const IndexList &list);

// The usual case of FedVertices, in line: the layout whose next slots take that many vertices of the draw. Null where
// the draw needs more than to be copied there.
[[nodiscard]] inline StreamLayout *usualLayout(EsContext &context, int64_t count) {
    Vertices &vertices = context.vertices;
    VertexArrayState &state = *vertices.bound;
    const ProgramInputs inputs = context.programs.inputs(context.shared->programs);
    const uint32_t others = state.enabledAttribs & ~state.clientAttribs & inputs.attribs;
    const bool isUsual =
        others == 0 && !inputs.readsVertexId && vertices.stream.staysMapped() &&
        state.layout.fits(state, state.enabledClientAttribs() & inputs.attribs, count, vertices.stream);
    return isUsual ? &state.layout : nullptr;
}

// Copies the vertices of a short list one behind the other, as a draw without a list reads them, which costs the host
// less. The slot of the first; nothing where the draw has to go the other way.
[[nodiscard]] std::optional<int64_t> gatherVertices(EsContext &context, const IndexList &list, GLint baseVertex);

// Makes an index list of the application's memory lie in the stream: what the host's draw takes as indices. Nothing
// when the host has no memory.
[[nodiscard]] std::optional<const void *> putIndices(EsContext &context, const IndexList &list);

// The host has a buffer of ours bound for indices while the application has none. Takes it away, for a call that the
// application could see it by.
void hideStreamedIndices(EsContext &context);
