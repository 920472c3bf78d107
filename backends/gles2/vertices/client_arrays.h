// Vertex arrays and index lists in client memory. A core context draws from buffers only, so the part that a draw reads
// is copied to the stream buffer first.
#pragma once

#include "common/index_size.h"
#include "context/es_context.h"
#include "vertices/index_range.h"

// Copies the client arrays that the current program reads to the stream. One without memory is disabled while this
// lives. The vertex array object's own state is restored where an application can see it.
class FedVertices {
public:
    FedVertices(EsContext &context, const DrawnVertices &drawn);
    ~FedVertices();
    FedVertices(const FedVertices &) = delete;
    FedVertices &operator=(const FedVertices &) = delete;

    // False when the vertices do not exist or the host is out of memory: the draw is skipped.
    [[nodiscard]] bool isComplete() const { return m_isComplete; }
    // The value to add to the index of each vertex.
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

// The index range of the vertices that the draw reads. Nothing when it reads none.
[[nodiscard]] std::optional<IndexRange> findIndexRange(EsContext &context, const IndexList &list);

// The fast path of FedVertices, inline: the layout whose next slots hold the vertices of the draw. Null when the draw
// needs more than a copy.
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

// Copies the vertices of a short list in index order, as a draw without indices reads them, which costs the host less.
// Returns the slot of the first; nothing when the draw needs the other path.
[[nodiscard]] std::optional<int64_t> gatherVertices(EsContext &context, const IndexList &list, GLint baseVertex);

// Copies an index list in client memory to the stream: the indices argument of the host's draw. Nothing when the host
// is out of memory.
[[nodiscard]] std::optional<const void *> putIndices(EsContext &context, const IndexList &list);

// Unbinds this library's index buffer, which the host may have bound while the application has none, for a call that
// could access it.
void hideStreamedIndices(EsContext &context);
