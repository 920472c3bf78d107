#include "common/per_back_end/shared_images.h"

void SharedImages::begin(uint64_t image) {
    const std::lock_guard lock(m_mutex);
    m_live.insert(image);
}

void SharedImages::end(uint64_t image, GLuint storage) {
    {
        const std::lock_guard lock(m_mutex);
        m_live.erase(image);
    }
    m_ended.add(storage);
}

bool SharedImages::isTaken(GLuint texture) const {
    const auto sibling = siblings.find(texture);
    if (!sibling) return false;
    const std::lock_guard lock(m_mutex);
    return m_live.contains(sibling->image);
}
