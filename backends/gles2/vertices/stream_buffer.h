// Host buffers for the client memory that draws read: data is appended after what earlier draws still read, chunk by
// chunk. A chunk is reused when the host has finished all draws from it. Used on one context's thread.
#pragma once

#include "names/name_table.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>
#include <span>
#include <vector>

class StreamBuffer {
public:
    static constexpr size_t alignment = 16; // of appended data

    struct Chunk {
        GLuint name = 0; // the host's
        size_t capacity = 0;
        std::byte *memory = nullptr; // where the host supports persistent mapping
        GLsync fence = nullptr;      // after the last draw from it
    };

    // canStayMapped: the host has GL_ARB_buffer_storage.
    explicit StreamBuffer(bool canStayMapped);

    // The host's name of the current chunk; 0 before the first.
    [[nodiscard]] GLuint name() const { return m_chunk.name; }
    // Changes with the current chunk. Draws must not read data of earlier chunks any more.
    [[nodiscard]] uint32_t generation() const { return m_generation; }

    // Whether the current chunk is persistently mapped.
    [[nodiscard]] bool staysMapped() const { return m_chunk.memory != nullptr; }

    // Reserves that many bytes that no draw has read: returns the offset, aligned, and not below least. Nothing when
    // the host is out of memory. May bind another buffer to GL_ARRAY_BUFFER.
    [[nodiscard]] std::optional<size_t> reserve(NameTable &names, size_t size, size_t least = 0) {
        const size_t offset = aligned(std::max(m_end, least));
        if (offset > m_chunk.capacity || size > m_chunk.capacity - offset) return reserveInNext(names, size, least);
        m_end = offset + size;
        return offset;
    }
    // Copies into reserved room of the current chunk. False when the host is out of memory. Binds the chunk to
    // GL_ARRAY_BUFFER unless it is persistently mapped.
    bool write(size_t offset, std::span<const std::byte> bytes) {
        if (!m_chunk.memory) return mapAndWrite(offset, bytes);
        std::memcpy(m_chunk.memory + offset, bytes.data(), bytes.size());
        return true;
    }

    // Releases all chunks, for the caller to delete.
    [[nodiscard]] std::vector<Chunk> release();

private:
    static constexpr size_t aligned(size_t offset) { return (offset + alignment - 1) / alignment * alignment; }

    std::optional<size_t> reserveInNext(NameTable &names, size_t size, size_t least);
    bool mapAndWrite(size_t offset, std::span<const std::byte> bytes);
    bool beginChunk(NameTable &names, size_t capacity);
    // A chunk whose draws have finished.
    std::optional<Chunk> takeRetired(size_t capacity);
    std::optional<Chunk> makeChunk(NameTable &names, size_t capacity) const;

    // Null if the host lacks the function.
    decltype(&::glBufferStorage) m_bufferStorage = nullptr;
    Chunk m_chunk;
    size_t m_end = 0; // of the used part
    uint32_t m_generation = 0;
    std::vector<Chunk> m_retired; // the newest at the end
};
