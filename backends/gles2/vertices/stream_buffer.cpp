#include "vertices/stream_buffer.h"

#include "common/per_back_end/host_gl.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr size_t usualCapacity = size_t(1) << 20;
constexpr size_t alignment = 16;

// The end of the blocks when they are put behind that offset.
size_t place(std::span<StreamBlock> blocks, size_t end) {
    for (StreamBlock &block : blocks) {
        const size_t offset = std::max(end, block.leastOffset);
        block.offset = (offset + alignment - 1) / alignment * alignment;
        end = block.offset + block.bytes.size();
    }
    return end;
}

} // namespace

void StreamBuffer::bind(NameTable &names) {
    const HostGl &gl = hostGl();
    if (m_name == 0) m_name = names.generateHidden(gl.genBuffers);
    gl.bindBuffer(m_target, m_name);
}

bool StreamBuffer::put(std::span<StreamBlock> blocks) {
    const HostGl &gl = hostGl();
    size_t end = place(blocks, m_end);
    if (end > m_capacity) {
        end = place(blocks, 0);
        m_capacity = std::max(usualCapacity, end);
        gl.bufferData(m_target, static_cast<GLsizeiptr>(m_capacity), nullptr, GL_STREAM_DRAW);
    }
    m_end = end;
    for (const StreamBlock &block : blocks) {
        if (block.bytes.empty()) continue;
        // Nothing that the host has yet to draw reads this range.
        void *const memory = gl.mapBufferRange(
            m_target, static_cast<GLintptr>(block.offset), static_cast<GLsizeiptr>(block.bytes.size()),
            GL_MAP_WRITE_BIT | GL_MAP_INVALIDATE_RANGE_BIT | GL_MAP_UNSYNCHRONIZED_BIT);
        if (!memory) {
            m_capacity = 0;
            return false;
        }
        std::memcpy(memory, block.bytes.data(), block.bytes.size());
        gl.unmapBuffer(m_target);
    }
    return true;
}
