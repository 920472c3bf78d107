#include "vertices/shared_buffers.h"

#include "common/per_back_end/host_gl.h"

void SharedBuffers::abandon(const std::vector<StreamBuffer::Chunk> &chunks) {
    for (const StreamBuffer::Chunk &chunk : chunks)
        m_abandoned.add(chunk);
}

void SharedBuffers::deleteAbandoned() {
    for (const StreamBuffer::Chunk &chunk : m_abandoned.take()) {
        names.forgetHidden(chunk.name);
        hostGl().deleteSync(chunk.fence);
        hostGl().deleteBuffers(1, &chunk.name);
    }
}
