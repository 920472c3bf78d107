#include "vertices/shared_buffers.h"

#include "common/per_back_end/host_gl.h"

void SharedBuffers::abandon(std::span<const GLuint> buffers) {
    const std::lock_guard lock(m_mutex);
    m_abandoned.insert(m_abandoned.end(), buffers.begin(), buffers.end());
}

void SharedBuffers::deleteAbandoned() {
    std::vector<GLuint> buffers;
    {
        const std::lock_guard lock(m_mutex);
        buffers.swap(m_abandoned);
    }
    for (const GLuint buffer : buffers)
        names.forgetHidden(buffer);
    if (!buffers.empty()) hostGl().deleteBuffers(static_cast<GLsizei>(buffers.size()), buffers.data());
}
