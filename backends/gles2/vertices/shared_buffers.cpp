#include "vertices/shared_buffers.h"

#include "common/per_back_end/host_gl.h"

void SharedBuffers::abandon(std::vector<StreamBuffer::Chunk> chunks) {
    const std::lock_guard lock(m_mutex);
    m_abandoned.insert(m_abandoned.end(), chunks.begin(), chunks.end());
}

void SharedBuffers::deleteAbandoned() {
    std::vector<StreamBuffer::Chunk> chunks;
    {
        const std::lock_guard lock(m_mutex);
        chunks.swap(m_abandoned);
    }
    for (const StreamBuffer::Chunk &chunk : chunks) {
        names.forgetHidden(chunk.name);
        hostGl().deleteSync(chunk.fence);
        hostGl().deleteBuffers(1, &chunk.name);
    }
}
