#include "vertices/client_arrays.h"

#include "common/per_back_end/host_gl.h"
#include "programs/active_attribs.h"
#include "vertices/vertex_format.h"

#include <algorithm>
#include <bit>
#include <limits>

namespace {

using Attrib = VertexArrayState::Attrib;

// An array, and what the draw reads of it.
struct ReadArray {
    GLuint attrib;
    GLuint divisor;
    int64_t stride;
    int64_t first; // in bytes behind the array's start
    const std::byte *begin;
    const std::byte *end;
    size_t block = 0;
};

struct ReadArrays {
    std::array<ReadArray, VertexArrayState::maxAttribs> arrays;
    std::array<StreamBlock, VertexArrayState::maxAttribs> blocks;
    size_t arrayCount = 0;
    size_t blockCount = 0;
};

template <typename Take>
void forEachBit(uint32_t mask, Take take) {
    for (; mask; mask &= mask - 1)
        take(static_cast<GLuint>(std::countr_zero(mask)));
}

ReadArray readArray(const VertexArrayState &state, GLuint index, const DrawnVertices &drawn) {
    const Attrib &attrib = state.attribs[index];
    const GLuint divisor = state.bindings[attrib.binding].divisor;
    const auto size = static_cast<int64_t>(vertexSize(attrib.size, attrib.type));
    const int64_t stride = attrib.stride ? attrib.stride : size;
    const int64_t first = divisor ? 0 : drawn.first;
    const int64_t last = divisor ? (drawn.instanceCount - 1) / static_cast<int64_t>(divisor) : drawn.last;
    return {
        index, divisor, stride, first * stride, attrib.pointer + first * stride, attrib.pointer + last * stride + size};
}

// Arrays that lie interleaved are one block.
void addToBlocks(ReadArrays &read, ReadArray array) {
    for (array.block = 0; array.block < read.blockCount; ++array.block) {
        const ReadArray &other = *std::ranges::find(read.arrays, array.block, &ReadArray::block);
        StreamBlock &block = read.blocks[array.block];
        const std::byte *const begin = std::min(block.bytes.data(), array.begin);
        const std::byte *const end = std::max(block.bytes.data() + block.bytes.size(), array.end);
        const bool isInterleaved = other.stride == array.stride && other.divisor == array.divisor &&
                                   end - begin < other.end - other.begin + array.stride &&
                                   end - begin < array.end - array.begin + array.stride;
        if (!isInterleaved) continue;
        block.bytes = {begin, end};
        read.arrays[read.arrayCount++] = array;
        return;
    }
    read.blocks[read.blockCount++] = {{array.begin, array.end}, static_cast<size_t>(array.first)};
    read.arrays[read.arrayCount++] = array;
}

void pointHostAt(const VertexArrayState &state, const ReadArrays &read) {
    const HostGl &gl = hostGl();
    for (size_t index = 0; index < read.arrayCount; ++index) {
        const ReadArray &array = read.arrays[index];
        const StreamBlock &block = read.blocks[array.block];
        const Attrib &attrib = state.attribs[array.attrib];
        const size_t inBlock = static_cast<size_t>(array.begin - block.bytes.data());
        const auto offset = reinterpret_cast<const void *>(block.offset + inBlock - static_cast<size_t>(array.first));
        if (attrib.isInteger) {
            gl.vertexAttribIPointer(array.attrib, attrib.size, attrib.type, attrib.stride, offset);
        } else {
            gl.vertexAttribPointer(array.attrib, attrib.size, attrib.type, attrib.isNormalized, attrib.stride, offset);
        }
    }
}

template <typename Index>
std::optional<IndexRange> rangeOf(const void *indices, GLsizei count, bool hasRestart) {
    constexpr Index restart = std::numeric_limits<Index>::max();
    const auto *const list = static_cast<const Index *>(indices);
    Index lowest = restart;
    Index highest = 0;
    bool isEmpty = true;
    for (GLsizei position = 0; position < count; ++position) {
        const Index index = list[position];
        if (hasRestart && index == restart) continue;
        lowest = std::min(lowest, index);
        highest = std::max(highest, index);
        isEmpty = false;
    }
    if (isEmpty) return std::nullopt;
    return IndexRange{lowest, highest};
}

} // namespace

FedVertices::FedVertices(EsContext &context, const DrawnVertices &drawn) {
    const VertexArrayState &state = *context.vertices.bound;
    const uint32_t mask = state.enabledClientAttribs() & activeAttribs(context);
    if (mask == 0) return;
    if (drawn.first < 0) {
        m_isComplete = false;
        return;
    }
    const HostGl &gl = hostGl();
    ReadArrays read;
    forEachBit(mask, [&](GLuint attrib) {
        if (state.attribs[attrib].pointer) return addToBlocks(read, readArray(state, attrib, drawn));
        gl.disableVertexAttribArray(attrib);
        m_switchedOff |= 1u << attrib;
    });
    if (read.arrayCount == 0) return;
    context.vertices.stream.bind(context.shared->buffers.names);
    m_isComplete = context.vertices.stream.put({read.blocks.data(), read.blockCount});
    if (m_isComplete) pointHostAt(state, read);
    // Another context may have deleted it; the host binds no name that is gone.
    if (context.vertices.arrayBuffer && !gl.isBuffer(context.vertices.arrayBuffer)) context.vertices.arrayBuffer = 0;
    gl.bindBuffer(GL_ARRAY_BUFFER, context.vertices.arrayBuffer);
}

FedVertices::~FedVertices() {
    forEachBit(m_switchedOff, [](GLuint attrib) { hostGl().enableVertexAttribArray(attrib); });
}

std::optional<IndexRange> findIndexRange(EsContext &context, const IndexList &list) {
    const HostGl &gl = hostGl();
    const size_t size = static_cast<size_t>(list.count) * static_cast<size_t>(indexSize(list.type));
    const void *indices = list.indices;
    if (context.vertices.bound->elementBuffer) {
        GLint64 bufferSize = 0;
        gl.getBufferParameteri64v(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_SIZE, &bufferSize);
        const auto offset = reinterpret_cast<uintptr_t>(indices);
        const auto available = static_cast<uintptr_t>(bufferSize);
        if (offset > available || size > available - offset) return std::nullopt;
        context.vertices.readBackIndices.resize(size);
        gl.getBufferSubData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLintptr>(offset), static_cast<GLsizeiptr>(size),
                            context.vertices.readBackIndices.data());
        indices = context.vertices.readBackIndices.data();
    }
    const bool hasRestart = context.major >= 3 && gl.isEnabled(GL_PRIMITIVE_RESTART_FIXED_INDEX);
    switch (list.type) {
    case GL_UNSIGNED_BYTE:
        return rangeOf<GLubyte>(indices, list.count, hasRestart);
    case GL_UNSIGNED_SHORT:
        return rangeOf<GLushort>(indices, list.count, hasRestart);
    default:
        return rangeOf<GLuint>(indices, list.count, hasRestart);
    }
}

FedIndices::FedIndices(EsContext &context, const IndexList &list) : m_indices(list.indices) {
    if (context.vertices.bound->elementBuffer) return;
    m_isFed = true;
    context.vertices.indexStream.bind(context.shared->buffers.names);
    const size_t size = static_cast<size_t>(list.count) * static_cast<size_t>(indexSize(list.type));
    StreamBlock block = {{static_cast<const std::byte *>(list.indices), size}};
    m_isComplete = context.vertices.indexStream.put({&block, 1});
    m_indices = reinterpret_cast<const void *>(block.offset);
}

FedIndices::~FedIndices() {
    if (m_isFed) hostGl().bindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
}
