#include "vertices/stream_layout.h"

#include "common/per_back_end/host_gl.h"
#include "vertices/vertex_array_state.h"

#include <algorithm>
#include <bit>

namespace {

// Spare room of a layout that draws reuse, which is doubled up to this limit.
constexpr size_t mostSpareBytes = size_t(1) << 16;

constexpr size_t padded(size_t size) {
    return (size + StreamBuffer::alignment - 1) / StreamBuffer::alignment * StreamBuffer::alignment;
}

// The part that a draw reads of arrays with that divisor.
DrawnVertices readOf(const DrawnVertices &drawn, GLuint divisor) {
    if (divisor == 0) return drawn;
    return {drawn.firstInstance, (drawn.instanceCount - 1) / int64_t(divisor) + 1, drawn.instanceCount};
}

} // namespace

bool StreamLayout::make(const VertexArrayState &state, uint32_t mask, int64_t count, StreamBuffer &stream,
                        NameTable &names) {
    const bool isAgain = m_mask == mask;
    invalidate();
    gatherBlocks(state, mask);
    size_t slotSize = 0;
    for (const Block &block : m_blocks)
        slotSize += block.stride;
    const auto mostSlots = static_cast<int64_t>(mostSpareBytes / slotSize);
    m_slotCount = std::max(count, isAgain ? std::min(m_slotCount * 2, mostSlots) : 0);
    m_nextSlot = 0;

    const auto sizeOf = [&](const Block &block) { return padded(block.stride * static_cast<size_t>(m_slotCount)); };
    size_t size = 0;
    for (const Block &block : m_blocks)
        size += sizeOf(block);
    auto offset = stream.reserve(names, size);
    if (!offset) return false;
    for (Block &block : m_blocks) {
        block.offset = *offset;
        *offset += sizeOf(block);
    }
    pointHost(state, stream);
    m_mask = mask;
    m_generation = stream.generation();
    return true;
}

int64_t StreamLayout::gather(std::span<const int64_t> numbers, StreamBuffer &stream) {
    for (const Block &block : m_blocks) {
        int64_t slot = m_nextSlot;
        for (const int64_t number : numbers)
            putBlock(block, number, 1, slot++, stream);
    }
    return std::exchange(m_nextSlot, m_nextSlot + static_cast<int64_t>(numbers.size()));
}

bool StreamLayout::putExactly(const VertexArrayState &state, uint32_t mask, const DrawnVertices &drawn,
                              StreamBuffer &stream, NameTable &names) {
    invalidate();
    gatherBlocks(state, mask);
    const auto sizeOf = [](const Block &block, const DrawnVertices &read) {
        return padded(block.stride * static_cast<size_t>(read.count));
    };
    // Vertex 0 may be before the reserved room, but not before the buffer.
    size_t size = 0;
    size_t least = 0;
    for (const Block &block : m_blocks) {
        const DrawnVertices read = readOf(drawn, block.divisor);
        size += sizeOf(block, read);
        least = std::max(least, block.stride * static_cast<size_t>(read.first));
    }
    auto offset = stream.reserve(names, size, least);
    if (!offset) return false;
    for (Block &block : m_blocks) {
        const DrawnVertices read = readOf(drawn, block.divisor);
        block.offset = *offset - block.stride * static_cast<size_t>(read.first);
        *offset += sizeOf(block, read);
        if (!putBlock(block, read.first, read.count, read.first, stream)) return false;
    }
    pointHost(state, stream);
    return true;
}

void StreamLayout::gatherBlocks(const VertexArrayState &state, uint32_t mask) {
    m_blocks.clear();
    m_arrays.clear();
    m_arePointersOld = false;
    for (; mask; mask &= mask - 1) {
        const auto index = static_cast<GLuint>(std::countr_zero(mask));
        const VertexArrayState::Attrib &attrib = state.attribs[index];
        const auto begin = reinterpret_cast<uintptr_t>(attrib.pointer);
        const size_t size = vertexSize(attrib.format);
        const size_t stride = attrib.format.stride ? static_cast<size_t>(attrib.format.stride) : size;
        const Block own = {begin, begin + size, stride, state.bindings[attrib.binding].divisor};
        // Interleaved arrays have a common stride.
        const auto isBeside = [&](const Block &block) {
            const size_t span = std::max(block.end, own.end) - std::min(block.begin, own.begin);
            return block.stride == own.stride && block.divisor == own.divisor && span <= own.stride;
        };
        const auto found = std::ranges::find_if(m_blocks, isBeside);
        m_arrays.push_back({index, static_cast<size_t>(found - m_blocks.begin())});
        if (found == m_blocks.end()) {
            m_blocks.push_back(own);
        } else {
            found->begin = std::min(found->begin, own.begin);
            found->end = std::max(found->end, own.end);
        }
    }
    for (Array &array : m_arrays)
        array.offset = reinterpret_cast<uintptr_t>(state.attribs[array.attrib].pointer) - m_blocks[array.block].begin;
}

void StreamLayout::pointHost(const VertexArrayState &state, const StreamBuffer &stream) const {
    const HostGl &gl = hostGl();
    gl.bindBuffer(GL_ARRAY_BUFFER, stream.name());
    for (const Array &array : m_arrays) {
        const VertexFormat &format = state.attribs[array.attrib].format;
        const auto *const place = reinterpret_cast<const void *>(m_blocks[array.block].offset + array.offset);
        if (format.isInteger) {
            gl.vertexAttribIPointer(array.attrib, format.size, format.type, format.stride, place);
        } else {
            gl.vertexAttribPointer(array.attrib, format.size, format.type, format.isNormalized, format.stride, place);
        }
    }
}

// False if the arrays have moved relative to each other.
bool StreamLayout::findArrays(const VertexArrayState &state) {
    size_t known = 0;
    for (const Array &array : m_arrays) {
        const auto pointer = reinterpret_cast<uintptr_t>(state.attribs[array.attrib].pointer);
        if (!pointer) return false;
        Block &block = m_blocks[array.block];
        const uintptr_t moved = pointer - array.offset - block.begin;
        // Blocks are numbered in the order of their first arrays; the first array moves its block.
        const bool isFirst = array.block == known;
        if (!isFirst && moved != 0) return false;
        block.begin += moved;
        block.end += moved;
        if (isFirst) ++known;
    }
    m_arePointersOld = false;
    return true;
}
