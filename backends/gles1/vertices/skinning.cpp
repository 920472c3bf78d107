#include "vertices/skinning.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace {

constexpr Matrix identity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

using Normal = std::array<GLfloat, 9>; // a matrix of normals, column by column

GLint askHost(GLenum pname) {
    GLint value = 0;
    hostGl().getIntegerv(pname, &value);
    return value;
}

OwnArray hostArray(GLint size, GLenum type, GLenum stride, GLenum pointer, GLenum buffer) {
    OwnArray array = {.size = size,
                      .type = static_cast<GLenum>(askHost(type)),
                      .stride = askHost(stride),
                      .buffer = static_cast<GLuint>(askHost(buffer))};
    void *place = nullptr;
    hostGl().getPointerv(pointer, &place);
    array.pointer = place;
    return array;
}

// The application's array, and whether the host holds it.
std::pair<OwnArray, bool> arrayOf(const ArrayObject &object, unsigned slot) {
    if (const auto own = object.own.find(slot); own != object.own.end()) return {own->second, false};
    if (slot == VertexSlot) {
        return {hostArray(askHost(GL_VERTEX_ARRAY_SIZE), GL_VERTEX_ARRAY_TYPE, GL_VERTEX_ARRAY_STRIDE,
                          GL_VERTEX_ARRAY_POINTER, GL_VERTEX_ARRAY_BUFFER_BINDING),
                true};
    }
    return {hostArray(3, GL_NORMAL_ARRAY_TYPE, GL_NORMAL_ARRAY_STRIDE, GL_NORMAL_ARRAY_POINTER,
                      GL_NORMAL_ARRAY_BUFFER_BINDING),
            true};
}

// The inverse transpose of the upper left 3 x 3 matrix; zeros if it has no inverse.
Normal normalMatrix(const Matrix &m) {
    const Normal cofactors = {m[5] * m[10] - m[9] * m[6], m[8] * m[6] - m[4] * m[10], m[4] * m[9] - m[8] * m[5],
                              m[9] * m[2] - m[1] * m[10], m[0] * m[10] - m[8] * m[2], m[8] * m[1] - m[0] * m[9],
                              m[1] * m[6] - m[5] * m[2],  m[4] * m[2] - m[0] * m[6],  m[0] * m[5] - m[4] * m[1]};
    const GLfloat determinant = m[0] * cofactors[0] + m[1] * cofactors[1] + m[2] * cofactors[2];
    Normal result = {};
    if (determinant == 0) return result;
    std::ranges::transform(cofactors, result.begin(), [&](GLfloat number) { return number / determinant; });
    return result;
}

// Integers in normals represent -1 to 1.
GLfloat normalPart(GLenum type, GLfloat number) {
    if (type == GL_BYTE) return (2 * number + 1) / 255;
    return type == GL_SHORT ? (2 * number + 1) / 65535 : number;
}

// The matrices that transform each vertex, each with a weight.
class Moves {
public:
    Moves(const EsContext &context, const VerticesRead &vertices)
        : m_palette(context.palette), m_object(context.vertices.arrays.bound()),
          m_indices(readNumbers(m_object.matrixIndices.array, vertices)),
          m_weights(readNumbers(m_object.weights.array, vertices)) {}

    // add: called with the number of a matrix and its weight.
    template <typename Add>
    void ofVertex(size_t vertex, Add add) const {
        const auto indexSize = static_cast<size_t>(m_object.matrixIndices.array.size);
        const auto weightSize = static_cast<size_t>(m_object.weights.array.size);
        for (size_t unit = 0; unit < std::min(indexSize, weightSize); ++unit) {
            const auto matrix = static_cast<size_t>(m_indices[vertex * indexSize + unit]);
            const GLfloat weight = m_weights[vertex * weightSize + unit];
            if (matrix < m_palette.matrices.size()) add(matrix, weight);
        }
    }

private:
    const MatrixPalette &m_palette;
    const ArrayObject &m_object;
    std::vector<GLfloat> m_indices, m_weights;
};

std::vector<GLfloat> movedPositions(const EsContext &context, const Moves &moves, const std::vector<GLfloat> &numbers,
                                    size_t size) {
    std::vector<GLfloat> moved(numbers.size() / size * 4);
    for (size_t vertex = 0; vertex * 4 < moved.size(); ++vertex) {
        std::array<GLfloat, 4> from = {0, 0, 0, 1};
        std::copy_n(&numbers[vertex * size], size, from.begin());
        moves.ofVertex(vertex, [&](size_t index, GLfloat weight) {
            const Matrix &matrix = context.palette.matrices[index];
            for (size_t row = 0; row < 4; ++row) {
                for (size_t column = 0; column < 4; ++column)
                    moved[vertex * 4 + row] += weight * matrix[column * 4 + row] * from[column];
            }
        });
    }
    return moved;
}

std::vector<GLfloat> movedNormals(const EsContext &context, const Moves &moves, const std::vector<GLfloat> &numbers,
                                  GLenum type) {
    std::vector<Normal> matrices;
    for (const Matrix &matrix : context.palette.matrices)
        matrices.push_back(normalMatrix(matrix));
    std::vector<GLfloat> moved(numbers.size());
    for (size_t vertex = 0; vertex * 3 < moved.size(); ++vertex) {
        moves.ofVertex(vertex, [&](size_t index, GLfloat weight) {
            for (size_t row = 0; row < 3; ++row) {
                for (size_t column = 0; column < 3; ++column)
                    moved[vertex * 3 + row] +=
                        weight * matrices[index][column * 3 + row] * normalPart(type, numbers[vertex * 3 + column]);
            }
        });
    }
    return moved;
}

// An array in which numbers begin with the vertex first.
OwnArray arrayAt(const std::vector<GLfloat> &numbers, GLint size, GLuint first) {
    const uintptr_t before = uintptr_t{first} * static_cast<uintptr_t>(size) * sizeof(GLfloat);
    const auto place = reinterpret_cast<uintptr_t>(numbers.data()) - before;
    return {.size = size, .pointer = reinterpret_cast<const void *>(place)};
}

} // namespace

bool isSkinning(const EsContext &context) {
    if (!context.palette.isOn) return false;
    const ArrayObject &object = context.vertices.arrays.bound();
    return object.matrixIndices.isOn && object.weights.isOn && hostGl().isEnabled(GL_VERTEX_ARRAY);
}

SkinnedArrays::SkinnedArrays(EsContext &context, const VerticesRead &vertices)
    : m_object(context.vertices.arrays.bound()), m_modelview(identity) {
    const Moves moves(context, vertices);
    const auto [positions, isPositionHosts] = arrayOf(m_object, VertexSlot);
    m_positions = movedPositions(context, moves, readNumbers(positions, vertices), static_cast<size_t>(positions.size));
    m_saved.push_back({VertexSlot, positions, isPositionHosts});
    if (hostGl().isEnabled(GL_NORMAL_ARRAY)) {
        const auto [normals, isNormalHosts] = arrayOf(m_object, NormalSlot);
        m_normals = movedNormals(context, moves, readNumbers(normals, vertices), normals.type);
        m_saved.push_back({NormalSlot, normals, isNormalHosts});
        m_object.own[NormalSlot] = arrayAt(m_normals, 3, vertices.first);
    }
    m_object.own[VertexSlot] = arrayAt(m_positions, 4, vertices.first);
}

SkinnedArrays::~SkinnedArrays() {
    const HostGl &gl = hostGl();
    GLint bound = 0;
    gl.getIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
    for (const auto &[slot, array, isHosts] : m_saved) {
        if (!isHosts) {
            m_object.own[slot] = array;
            continue;
        }
        m_object.own.erase(slot);
        gl.bindBuffer(GL_ARRAY_BUFFER, array.buffer);
        if (slot == VertexSlot) {
            gl.vertexPointer(array.size, array.type, array.stride, array.pointer);
        } else {
            gl.normalPointer(array.type, array.stride, array.pointer);
        }
    }
    gl.bindBuffer(GL_ARRAY_BUFFER, static_cast<GLuint>(bound));
}
