#include "vertices/client_arrays.h"

#include "common/per_back_end/host_gl.h"

#include <bit>

namespace {

template <typename Take>
void forEachBit(uint32_t mask, Take take) {
    for (; mask; mask &= mask - 1)
        take(static_cast<GLuint>(std::countr_zero(mask)));
}

// The attributes in mask that have no client pointer.
uint32_t nullAttribs(const VertexArrayState &state, uint32_t mask) {
    uint32_t result = 0;
    forEachBit(mask, [&](GLuint index) { result |= state.attribs[index].pointer ? 0 : 1u << index; });
    return result;
}

bool hasDivisor(const VertexArrayState &state, uint32_t mask) {
    bool result = false;
    forEachBit(mask, [&](GLuint index) { result |= state.bindings[state.attribs[index].binding].divisor != 0; });
    return result;
}

} // namespace

FedVertices::FedVertices(EsContext &context, const DrawnVertices &drawn) {
    Vertices &vertices = context.vertices;
    VertexArrayState &state = *vertices.bound;
    const ProgramInputs inputs = context.programs.inputs(context.shared->programs);
    uint32_t mask = state.enabledClientAttribs() & inputs.attribs;
    if (mask == 0) return;
    m_isComplete = drawn.first >= 0;
    if (!m_isComplete) return;

    m_switchedOff = nullAttribs(state, mask);
    forEachBit(m_switchedOff, [](GLuint index) { hostGl().disableVertexAttribArray(index); });
    mask &= ~m_switchedOff;
    if (mask == 0) return;
    NameTable &names = context.shared->buffers.names;
    // Requires that all arrays of the draw begin at the same slot, and that the program cannot see which.
    const bool hasOthers = state.enabledAttribs & ~state.clientAttribs & inputs.attribs;
    if (!hasOthers && !inputs.readsVertexId && !m_switchedOff && !hasDivisor(state, mask)) {
        const bool isThere = state.layout.fits(state, mask, drawn.count, vertices.stream);
        m_isComplete = isThere || state.layout.make(state, mask, drawn.count, vertices.stream, names);
        const auto slot = m_isComplete ? state.layout.put(drawn.first, drawn.count, vertices.stream) : std::nullopt;
        m_isComplete = slot.has_value();
        // The host adds base and index modulo 2^32.
        if (slot) m_shift = static_cast<GLint>(*slot - drawn.first);
        if (isThere && vertices.stream.staysMapped()) return;
    } else {
        m_isComplete = state.layout.putExactly(state, mask, drawn, vertices.stream, names);
    }
    vertices.restoreArrayBuffer();
}

FedVertices::~FedVertices() {
    forEachBit(m_switchedOff, [](GLuint index) { hostGl().enableVertexAttribArray(index); });
}

std::optional<IndexRange> findIndexRange(EsContext &context, const IndexList &list) {
    const HostGl &gl = hostGl();
    const void *indices = list.indices;
    if (context.vertices.bound->elementBuffer) {
        const size_t size = list.size();
        std::vector<std::byte> &copy = context.vertices.readBackIndices;
        GLint64 bufferSize = 0;
        gl.getBufferParameteri64v(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_SIZE, &bufferSize);
        const auto offset = reinterpret_cast<uintptr_t>(indices);
        const auto available = static_cast<uintptr_t>(bufferSize);
        if (offset > available || size > available - offset) return std::nullopt;
        copy.resize(size);
        gl.getBufferSubData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLintptr>(offset), static_cast<GLsizeiptr>(size),
                            copy.data());
        indices = copy.data();
    }
    const IndexRange range = rangeOf(indices, list.count, list.type);
    const bool mayRestart = context.major >= 3 && range.highest == greatestIndex(list.type);
    if (!mayRestart || !gl.isEnabled(GL_PRIMITIVE_RESTART_FIXED_INDEX)) return range;
    return rangeWithoutRestarts(indices, list.count, list.type);
}

std::optional<int64_t> gatherVertices(EsContext &context, const IndexList &list, GLint baseVertex) {
    constexpr GLsizei mostGathered = 32;
    if (list.count > mostGathered || context.vertices.bound->elementBuffer) return std::nullopt;
    const auto gather = [&](const auto *indices) -> std::optional<int64_t> {
        std::array<int64_t, mostGathered> numbers;
        for (GLsizei place = 0; place < list.count; ++place) {
            numbers[static_cast<size_t>(place)] = int64_t(indices[place]) + baseVertex;
            // This index may restart a primitive.
            if (indices[place] == greatestIndex(list.type)) return std::nullopt;
        }
        StreamLayout *const layout = usualLayout(context, list.count);
        if (!layout || *std::min_element(numbers.begin(), numbers.begin() + list.count) < 0) return std::nullopt;
        return layout->gather({numbers.data(), static_cast<size_t>(list.count)}, context.vertices.stream);
    };
    switch (list.type) {
    case GL_UNSIGNED_BYTE:
        return gather(static_cast<const GLubyte *>(list.indices));
    case GL_UNSIGNED_SHORT:
        return gather(static_cast<const GLushort *>(list.indices));
    default:
        return gather(static_cast<const GLuint *>(list.indices));
    }
}

std::optional<const void *> putIndices(EsContext &context, const IndexList &list) {
    Vertices &vertices = context.vertices;
    VertexArrayState &state = *vertices.bound;
    if (state.elementBuffer) return list.indices;
    StreamBuffer &stream = vertices.indexStream;
    const auto offset = stream.reserve(context.shared->buffers.names, list.size());
    const bool isPut = offset && stream.write(*offset, {static_cast<const std::byte *>(list.indices), list.size()});
    const bool isNewChunk = state.streamedElementBuffer != stream.name();
    if (isNewChunk || !stream.staysMapped()) vertices.restoreArrayBuffer();
    if (!isPut) return std::nullopt;
    if (isNewChunk) {
        hostGl().bindBuffer(GL_ELEMENT_ARRAY_BUFFER, stream.name());
        state.streamedElementBuffer = stream.name();
    }
    return reinterpret_cast<const void *>(*offset);
}

void hideStreamedIndices(EsContext &context) {
    VertexArrayState &state = *context.vertices.bound;
    if (state.streamedElementBuffer == 0) return;
    state.streamedElementBuffer = 0;
    hostGl().bindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
}
