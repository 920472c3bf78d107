#include "vertices/array_upload.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"
#include "desktop_names.h"
#include "fixed_function/fixed_point.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>

namespace {

constexpr size_t maxUpload = size_t{1} << 30;
constexpr GLuint maxVertices = 1u << 26;

class BoundArrayBuffer {
public:
    explicit BoundArrayBuffer(GLuint buffer) {
        hostGl().getIntegerv(GL_ARRAY_BUFFER_BINDING, &m_before);
        hostGl().bindBuffer(GL_ARRAY_BUFFER, buffer);
    }
    ~BoundArrayBuffer() { hostGl().bindBuffer(GL_ARRAY_BUFFER, static_cast<GLuint>(m_before)); }
    BoundArrayBuffer(const BoundArrayBuffer &) = delete;
    BoundArrayBuffer &operator=(const BoundArrayBuffer &) = delete;

private:
    GLint m_before = 0;
};

class ClientUnit {
public:
    explicit ClientUnit(unsigned unit) {
        hostGl().getIntegerv(GL_CLIENT_ACTIVE_TEXTURE, &m_before);
        hostGl().clientActiveTexture(GL_TEXTURE0 + unit);
    }
    ~ClientUnit() { hostGl().clientActiveTexture(static_cast<GLenum>(m_before)); }
    ClientUnit(const ClientUnit &) = delete;
    ClientUnit &operator=(const ClientUnit &) = delete;

private:
    GLint m_before = 0;
};

// The bytes of an array that a draw reads, in client memory or read back from the buffer.
class ArrayBytes {
public:
    ArrayBytes(const OwnArray &array, const VerticesRead &vertices)
        : m_first(vertices.first), m_distance(static_cast<size_t>(array.distance())),
          m_elementSize(static_cast<size_t>(array.elementSize())) {
        const size_t offset = m_first * m_distance;
        const size_t length = (vertices.last - vertices.first) * m_distance + m_elementSize;
        if (array.buffer != 0) {
            copyBuffer(array, offset, length);
            m_bytes = m_copy.data();
            m_length = m_copy.size();
        } else if (array.pointer) {
            m_bytes = static_cast<const std::byte *>(array.pointer) + offset;
            m_length = length;
        }
    }

    // Null past the end of the buffer.
    [[nodiscard]] const std::byte *vertex(GLuint index) const {
        const size_t offset = (index - m_first) * m_distance;
        return offset + m_elementSize <= m_length ? m_bytes + offset : nullptr;
    }

private:
    void copyBuffer(const OwnArray &array, size_t offset, size_t length) {
        const BoundArrayBuffer bound(array.buffer);
        GLint whole = 0;
        hostGl().getBufferParameteriv(GL_ARRAY_BUFFER, GL_BUFFER_SIZE, &whole);
        const size_t start = reinterpret_cast<uintptr_t>(array.pointer) + offset;
        if (start >= static_cast<size_t>(whole)) return;
        m_copy.resize(std::min(length, static_cast<size_t>(whole) - start));
        hostGl().getBufferSubData(GL_ARRAY_BUFFER, static_cast<GLintptr>(start), static_cast<GLsizeiptr>(m_copy.size()),
                                  m_copy.data());
    }

    size_t m_first;
    size_t m_distance;
    size_t m_elementSize;
    const std::byte *m_bytes = nullptr;
    size_t m_length = 0;
    std::vector<std::byte> m_copy;
};

// The application's array may be unaligned.
template <typename Number>
Number numberAt(const std::byte *place, GLint index) {
    Number number;
    std::memcpy(&number, place + static_cast<size_t>(index) * sizeof number, sizeof number);
    return number;
}

GLfloat component(GLenum type, const std::byte *place, GLint index) {
    switch (type) {
    case GL_BYTE:
        return numberAt<GLbyte>(place, index);
    case GL_UNSIGNED_BYTE:
        return numberAt<GLubyte>(place, index);
    case GL_SHORT:
        return numberAt<GLshort>(place, index);
    case GL_FIXED:
        return fromFixed(numberAt<GLfixed>(place, index));
    default:
        return numberAt<GLfloat>(place, index);
    }
}

bool isOn(unsigned slot) {
    constexpr GLenum names[] = {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_COLOR_ARRAY};
    if (slot < TexCoordSlot) return hostGl().isEnabled(names[slot]);
    const ClientUnit unit(slot - TexCoordSlot);
    return hostGl().isEnabled(GL_TEXTURE_COORD_ARRAY);
}

// Requires that the stream buffer is bound.
void pointHostAt(unsigned slot, GLint size, size_t offset) {
    const HostGl &gl = hostGl();
    const auto *const place = reinterpret_cast<const void *>(offset);
    switch (slot) {
    case VertexSlot:
        return gl.vertexPointer(size, GL_FLOAT, 0, place);
    case NormalSlot:
        return gl.normalPointer(GL_FLOAT, 0, place);
    case ColorSlot:
        return gl.colorPointer(size, GL_FLOAT, 0, place);
    default: {
        const ClientUnit unit(slot - TexCoordSlot);
        return gl.texCoordPointer(size, GL_FLOAT, 0, place);
    }
    }
}

} // namespace

std::optional<VerticesRead> verticesInRow(GLint first, GLsizei count) {
    const GLuint start = static_cast<GLuint>(first);
    const GLuint last = start + static_cast<GLuint>(count) - 1;
    if (last >= maxVertices) return std::nullopt;
    return VerticesRead{start, last, {}};
}

std::optional<VerticesRead> verticesOf(const std::vector<GLuint> &indices) {
    const auto [first, last] = std::ranges::minmax(indices);
    if (last >= maxVertices) return std::nullopt;
    VerticesRead vertices = {first, last, {}};
    vertices.isRead.resize(size_t{last - first} + 1);
    for (const GLuint index : indices)
        vertices.isRead[index - first] = true;
    return vertices;
}

std::vector<GLfloat> readNumbers(const OwnArray &array, const VerticesRead &vertices) {
    const ArrayBytes bytes(array, vertices);
    const size_t count = size_t{vertices.last - vertices.first} + 1;
    const auto size = static_cast<size_t>(array.size);
    std::vector<GLfloat> numbers(count * size);
    for (size_t at = 0; at < count; ++at) {
        if (!vertices.isRead.empty() && !vertices.isRead[at]) continue;
        const std::byte *const place = bytes.vertex(vertices.first + static_cast<GLuint>(at));
        for (GLint index = 0; place && index < array.size; ++index)
            numbers[at * size + static_cast<size_t>(index)] = component(array.type, place, index);
    }
    return numbers;
}

bool drawsFromOwnArrays(const ArrayObject &object) {
    return std::ranges::any_of(object.own, [](const auto &entry) { return isOn(entry.first); });
}

bool uploadOwnArrays(EsContext &context, const VerticesRead &vertices) {
    const HostGl &gl = hostGl();
    // Vertices keep their indices, since the host's own arrays use the same ones: the buffer has unused room for those
    // before the first.
    const size_t bytesOfOne = (size_t{vertices.last} + 1) * sizeof(GLfloat);
    std::vector<std::pair<unsigned, const OwnArray *>> wanted;
    size_t total = 0;
    for (const auto &[slot, array] : context.vertices.arrays.bound().own) {
        if (!isOn(slot)) continue;
        wanted.emplace_back(slot, &array);
        total += bytesOfOne * static_cast<size_t>(array.size);
    }
    if (wanted.empty()) return true;
    if (total > maxUpload) return false;

    if (context.vertices.streamBuffer == 0) gl.genBuffers(1, &context.vertices.streamBuffer);
    const BoundArrayBuffer bound(context.vertices.streamBuffer);
    gl.bufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(total), nullptr, desktop::streamDraw);
    size_t offset = 0;
    for (const auto &[slot, array] : wanted) {
        const std::vector<GLfloat> numbers = readNumbers(*array, vertices);
        const size_t skipped = size_t{vertices.first} * static_cast<size_t>(array->size) * sizeof(GLfloat);
        gl.bufferSubData(GL_ARRAY_BUFFER, static_cast<GLintptr>(offset + skipped),
                         static_cast<GLsizeiptr>(numbers.size() * sizeof(GLfloat)), numbers.data());
        pointHostAt(slot, array->size, offset);
        offset += bytesOfOne * static_cast<size_t>(array->size);
    }
    return true;
}
