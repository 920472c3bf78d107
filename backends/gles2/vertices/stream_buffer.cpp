#include "vertices/stream_buffer.h"

#include "common/host_library.h"
#include "common/per_back_end/host_gl.h"

#include <bit>
#include <numeric>
#include <utility>

namespace {

// Two chunks fit a core's cache, and a fence for each costs little compared with filling it.
constexpr size_t usualCapacity = size_t(1) << 20;
// With more bytes in use the application waits for the host.
constexpr size_t mostRetired = size_t(1) << 26;

constexpr GLbitfield mappingForEver = GL_MAP_WRITE_BIT | GL_MAP_PERSISTENT_BIT_EXT | GL_MAP_COHERENT_BIT_EXT;

} // namespace

StreamBuffer::StreamBuffer(bool canStayMapped) {
    if (canStayMapped) {
        m_bufferStorage = reinterpret_cast<decltype(m_bufferStorage)>(hostFunction("glBufferStorage"));
    }
}

std::optional<size_t> StreamBuffer::reserveInNext(NameTable &names, size_t size, size_t least) {
    const size_t offset = aligned(least);
    if (!beginChunk(names, offset + size)) return std::nullopt;
    m_end = offset + size;
    return offset;
}

bool StreamBuffer::mapAndWrite(size_t offset, std::span<const std::byte> bytes) {
    const HostGl &gl = hostGl();
    gl.bindBuffer(GL_ARRAY_BUFFER, m_chunk.name);
    // No pending draw reads this range.
    void *const memory =
        gl.mapBufferRange(GL_ARRAY_BUFFER, static_cast<GLintptr>(offset), static_cast<GLsizeiptr>(bytes.size()),
                          GL_MAP_WRITE_BIT | GL_MAP_INVALIDATE_RANGE_BIT | GL_MAP_UNSYNCHRONIZED_BIT);
    if (!memory) return false;
    std::memcpy(memory, bytes.data(), bytes.size());
    gl.unmapBuffer(GL_ARRAY_BUFFER);
    return true;
}

bool StreamBuffer::beginChunk(NameTable &names, size_t capacity) {
    if (m_chunk.name) {
        m_chunk.fence = hostGl().fenceSync(GL_SYNC_GPU_COMMANDS_COMPLETE, 0);
        m_retired.push_back(std::exchange(m_chunk, {}));
    }
    m_end = 0;
    ++m_generation;
    auto chunk = takeRetired(capacity);
    if (!chunk) chunk = makeChunk(names, std::max(usualCapacity, std::bit_ceil(capacity)));
    if (chunk) m_chunk = *chunk;
    return chunk.has_value();
}

std::optional<StreamBuffer::Chunk> StreamBuffer::takeRetired(size_t capacity) {
    const auto take = [&](auto chunk) {
        Chunk taken = *chunk;
        m_retired.erase(chunk);
        hostGl().deleteSync(std::exchange(taken.fence, nullptr));
        return taken;
    };
    const auto isDrawn = [&](const Chunk &chunk, GLbitfield flags, GLuint64 timeout) {
        return chunk.capacity >= capacity && hostGl().clientWaitSync(chunk.fence, flags, timeout) != GL_TIMEOUT_EXPIRED;
    };
    // The newest chunk that the host has finished, since its memory is most likely still cached.
    for (auto chunk = m_retired.end(); chunk != m_retired.begin();)
        if (isDrawn(*--chunk, 0, 0)) return take(chunk);
    const size_t all = std::accumulate(m_retired.begin(), m_retired.end(), size_t(0),
                                       [](size_t sum, const Chunk &chunk) { return sum + chunk.capacity; });
    if (all < mostRetired) return std::nullopt;
    for (auto chunk = m_retired.begin(); chunk != m_retired.end(); ++chunk)
        if (isDrawn(*chunk, GL_SYNC_FLUSH_COMMANDS_BIT, ~GLuint64(0))) return take(chunk);
    return std::nullopt;
}

std::optional<StreamBuffer::Chunk> StreamBuffer::makeChunk(NameTable &names, size_t capacity) const {
    const HostGl &gl = hostGl();
    const auto size = static_cast<GLsizeiptr>(capacity);
    Chunk chunk = {names.generateHidden(gl.genBuffers), capacity};
    gl.bindBuffer(GL_ARRAY_BUFFER, chunk.name);
    if (!m_bufferStorage) {
        gl.bufferData(GL_ARRAY_BUFFER, size, nullptr, GL_STREAM_DRAW);
        return chunk;
    }
    m_bufferStorage(GL_ARRAY_BUFFER, size, nullptr, mappingForEver);
    chunk.memory = static_cast<std::byte *>(gl.mapBufferRange(GL_ARRAY_BUFFER, 0, size, mappingForEver));
    if (chunk.memory) return chunk;
    names.forgetHidden(chunk.name);
    gl.deleteBuffers(1, &chunk.name);
    return std::nullopt;
}

std::vector<StreamBuffer::Chunk> StreamBuffer::release() {
    std::vector<Chunk> chunks = std::exchange(m_retired, {});
    if (m_chunk.name) chunks.push_back(std::exchange(m_chunk, {}));
    return chunks;
}
