#include "textures/shared_images.h"

#include "common/per_back_end/host_gl.h"

void SharedImages::begin(uint64_t image) {
    const std::lock_guard lock(m_mutex);
    m_live.insert(image);
}

void SharedImages::end(uint64_t image, GLuint storage) {
    const std::lock_guard lock(m_mutex);
    m_live.erase(image);
    m_ended.push_back(storage);
}

void SharedImages::deleteEnded(NameTable &names) {
    std::vector<GLuint> ended;
    {
        const std::lock_guard lock(m_mutex);
        ended.swap(m_ended);
    }
    for (const GLuint storage : ended)
        names.forgetHidden(storage);
    if (!ended.empty()) hostGl().deleteTextures(static_cast<GLsizei>(ended.size()), ended.data());
}

bool SharedImages::isTaken(GLuint texture) const {
    const auto sibling = siblings.find(texture);
    if (!sibling) return false;
    const std::lock_guard lock(m_mutex);
    return m_live.contains(sibling->image);
}
