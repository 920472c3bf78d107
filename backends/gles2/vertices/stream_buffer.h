// Buffers of the host that carry what draws read of the application's memory: it is put behind what earlier draws still
// read, chunk by chunk. A chunk is written anew when the host has drawn from all of it. Used on one context's thread.
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
    static constexpr size_t alignment = 16; // of what is put into it

    struct Chunk {
        GLuint name = 0; // the host's
        size_t capacity = 0;
        std::byte *memory = nullptr; // where the host keeps buffers mapped while it draws from them
        GLsync fence = nullptr;      // behind the last draw from it
    };

    // canStayMapped: the host has GL_ARB_buffer_storage.
    explicit StreamBuffer(bool canStayMapped);

    // The host's name of the chunk that is written now; 0 before the first.
    [[nodiscard]] GLuint name() const { return m_chunk.name; }
    // Another number whenever another chunk is written. Draws must not read what was put into earlier ones any more.
    [[nodiscard]] uint32_t generation() const { return m_generation; }

    // Whether the host keeps the chunk that is written now mapped.
    [[nodiscard]] bool staysMapped() const { return m_chunk.memory != nullptr; }

    // Room for that many bytes that no draw has read: its offset, aligned, and not below least. Nothing when the host
    // has no memory. May bind another buffer to GL_ARRAY_BUFFER.
    [[nodiscard]] std::optional<size_t> reserve(NameTable &names, size_t size, size_t least = 0) {
        const size_t offset = aligned(std::max(m_end, least));
        if (offset > m_chunk.capacity || size > m_chunk.capacity - offset) return reserveInNext(names, size, least);
        m_end = offset + size;
        return offset;
    }
    // Copies into room that was reserved in the chunk that is written now. False when the host has no memory. Binds the
    // chunk to GL_ARRAY_BUFFER where the host does not keep it mapped.
    bool write(size_t offset, std::span<const std::byte> bytes) {
        if (!m_chunk.memory) return mapAndWrite(offset, bytes);
        std::memcpy(m_chunk.memory + offset, bytes.data(), bytes.size());
        return true;
    }

    // Gives all chunks away, to be deleted.
    [[nodiscard]] std::vector<Chunk> release();

private:
    static constexpr size_t aligned(size_t offset) { return (offset + alignment - 1) / alignment * alignment; }

    std::optional<size_t> reserveInNext(NameTable &names, size_t size, size_t least);
    bool mapAndWrite(size_t offset, std::span<const std::byte> bytes);
    bool beginChunk(NameTable &names, size_t capacity);
    // One that the host is done with.
    std::optional<Chunk> takeRetired(size_t capacity);
    std::optional<Chunk> makeChunk(NameTable &names, size_t capacity) const;

    // Null where the host has no such function.
    decltype(&::glBufferStorage) m_bufferStorage = nullptr;
    Chunk m_chunk;
    size_t m_end = 0; // of what is in use of it
    uint32_t m_generation = 0;
    std::vector<Chunk> m_retired; // the last one at the end
};
