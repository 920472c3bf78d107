#include "vertices/index_list.h"

#include "common/per_back_end/host_gl.h"

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

GLuint indexAt(const std::byte *place, GLsizei size) {
    GLubyte byte = 0;
    GLushort word = 0;
    GLuint index = 0;
    if (size == 1) std::memcpy(&byte, place, 1), index = byte;
    if (size == 2) std::memcpy(&word, place, 2), index = word;
    if (size == 4) std::memcpy(&index, place, 4);
    return index;
}

} // namespace

std::optional<std::vector<GLuint>> readIndices(GLsizei count, GLenum type, const void *indices) {
    const HostGl &gl = hostGl();
    const GLsizei size = indexSize(type);
    const size_t length = static_cast<size_t>(count) * static_cast<size_t>(size);
    GLint buffer = 0;
    gl.getIntegerv(GL_ELEMENT_ARRAY_BUFFER_BINDING, &buffer);
    std::vector<std::byte> copy;
    const std::byte *place = static_cast<const std::byte *>(indices);
    if (buffer != 0) {
        GLint whole = 0;
        gl.getBufferParameteriv(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_SIZE, &whole);
        const auto offset = reinterpret_cast<uintptr_t>(indices);
        if (offset > static_cast<size_t>(whole) || length > static_cast<size_t>(whole) - offset) return std::nullopt;
        copy.resize(length);
        gl.getBufferSubData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLintptr>(offset), static_cast<GLsizeiptr>(length),
                            copy.data());
        place = copy.data();
    }
    if (!place) return std::nullopt;
    std::vector<GLuint> list;
    list.reserve(static_cast<size_t>(count));
    for (GLsizei at = 0; at < count; ++at)
        list.push_back(indexAt(place + static_cast<ptrdiff_t>(at) * size, size));
    return list;
}
