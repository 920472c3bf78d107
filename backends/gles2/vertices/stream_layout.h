// The layout of a vertex array object's host arrays in the stream: slots of one vertex each, which draws fill in order.
// A draw then only starts at another slot, and the host's pointers stay.
#pragma once

#include "vertices/stream_buffer.h"

#include <utility>

struct VertexArrayState;

struct DrawnVertices {
    int64_t first;
    int64_t count;
    int64_t instanceCount;
    int64_t firstInstance = 0; // of arrays with a divisor
};

class StreamLayout {
public:
    // Called when the object's state has changed: the next draw needs a new layout.
    void invalidate() { m_mask = 0; }
    // Called when the arrays have moved in client memory.
    void followPointers() { m_arePointersOld = true; }

    // Whether the arrays of mask can use the existing slots.
    [[nodiscard]] bool fits(const VertexArrayState &state, uint32_t mask, int64_t count, const StreamBuffer &stream) {
        return mask == m_mask && mask != 0 && m_generation == stream.generation() &&
               count <= m_slotCount - m_nextSlot && (!m_arePointersOld || findArrays(state));
    }
    // Reserves room for the arrays of mask, none of which is null or has a divisor, and sets the host's pointers to it.
    // False when the host is out of memory. Leaves another buffer bound to GL_ARRAY_BUFFER.
    [[nodiscard]] bool make(const VertexArrayState &state, uint32_t mask, int64_t count, StreamBuffer &stream,
                            NameTable &names);
    // Copies the vertices from first on into the next slots: returns the first slot. Nothing when the host is out of
    // memory.
    [[nodiscard]] std::optional<int64_t> put(int64_t first, int64_t count, StreamBuffer &stream) {
        for (const Block &block : m_blocks) {
            if (putBlock(block, first, count, m_nextSlot, stream)) continue;
            invalidate();
            return std::nullopt;
        }
        return std::exchange(m_nextSlot, m_nextSlot + count);
    }

    // The same for indexed vertices, if the stream is persistently mapped.
    [[nodiscard]] int64_t gather(std::span<const int64_t> numbers, StreamBuffer &stream);

    // For one draw: vertices keep their indices, and arrays may have divisors. Otherwise as make() and put().
    [[nodiscard]] bool putExactly(const VertexArrayState &state, uint32_t mask, const DrawnVertices &drawn,
                                  StreamBuffer &stream, NameTable &names);

private:
    // Interleaved arrays.
    struct Block {
        uintptr_t begin; // of vertex 0 in client memory
        uintptr_t end;   // of the part that is read
        size_t stride;
        GLuint divisor;
        size_t offset = 0; // of slot 0 in the stream
    };
    struct Array {
        GLuint attrib;
        size_t block;
        size_t offset = 0; // in the block
    };

    [[nodiscard]] bool findArrays(const VertexArrayState &state);
    void gatherBlocks(const VertexArrayState &state, uint32_t mask);
    void pointHost(const VertexArrayState &state, const StreamBuffer &stream) const;
    static bool putBlock(const Block &block, int64_t first, int64_t count, int64_t slot, StreamBuffer &stream) {
        const uintptr_t begin = block.begin + block.stride * static_cast<size_t>(first);
        // Copies only the part of the last vertex that is read: client memory may end there.
        const size_t size = block.stride * static_cast<size_t>(count - 1) + (block.end - block.begin);
        return stream.write(block.offset + block.stride * static_cast<size_t>(slot),
                            {reinterpret_cast<const std::byte *>(begin), size});
    }

    uint32_t m_mask = 0;       // of the attribs that have slots; 0 without a layout
    uint32_t m_generation = 0; // of the stream
    bool m_arePointersOld = false;
    int64_t m_nextSlot = 0;
    int64_t m_slotCount = 0;
    std::vector<Block> m_blocks;
    std::vector<Array> m_arrays;
};
