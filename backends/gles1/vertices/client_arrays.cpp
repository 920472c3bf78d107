// Vertex array pointers. The host lacks bytes and fixed point for most arrays: such an array is kept here and uploaded
// as floats for each draw.
#include "announcement/queries.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>
#include <initializer_list>

namespace {

GLuint boundArrayBuffer() {
    GLint bound = 0;
    hostGl().getIntegerv(GL_ARRAY_BUFFER_BINDING, &bound);
    return static_cast<GLuint>(bound);
}

unsigned texCoordSlot() {
    GLint unit = GL_TEXTURE0;
    hostGl().getIntegerv(GL_CLIENT_ACTIVE_TEXTURE, &unit);
    return TexCoordSlot + static_cast<unsigned>(unit - GL_TEXTURE0);
}

struct Allowed {
    GLint minSize, maxSize;
    std::initializer_list<GLenum> types;
};

bool isAllowed(EsContext &context, const OwnArray &array, const Allowed &allowed) {
    if (array.size < allowed.minSize || array.size > allowed.maxSize || array.stride < 0) {
        context.raise(GL_INVALID_VALUE);
    } else if (std::ranges::find(allowed.types, array.type) == allowed.types.end()) {
        context.raise(GL_INVALID_ENUM);
    } else if (array.buffer == 0 && array.pointer && !context.vertices.arrays.isDefaultBound()) {
        // The same error as the host's for the types that it has: objects accept arrays in buffers only.
        context.raise(GL_INVALID_OPERATION);
    } else {
        return true;
    }
    return false;
}

// True if the array is set on the host. isHosts: the host has its type.
bool goesToHost(unsigned slot, OwnArray array, const Allowed &allowed, bool isHosts) {
    EsContext *const context = EsContext::current();
    if (!context) return true;
    array.buffer = boundArrayBuffer();
    if (!isAllowed(*context, array, allowed)) return false;
    auto &own = context->vertices.arrays.bound().own;
    if (isHosts) {
        own.erase(slot);
    } else {
        reportingMemory(*context, [&] { own[slot] = array; });
    }
    return isHosts;
}

void setEsArray(GLenum name, OwnArray array, const Allowed &allowed) {
    EsContext *const context = EsContext::current();
    if (!context) return;
    array.buffer = boundArrayBuffer();
    if (isAllowed(*context, array, allowed)) context->vertices.arrays.bound().find(name)->array = array;
}

struct ArrayNames {
    GLenum size, type, stride, buffer; // 0 for none
};

// In the order of the slots; the arrays that the host lacks are at the end.
constexpr ArrayNames arrayNames[] = {
    {GL_VERTEX_ARRAY_SIZE, GL_VERTEX_ARRAY_TYPE, GL_VERTEX_ARRAY_STRIDE, GL_VERTEX_ARRAY_BUFFER_BINDING},
    {0, GL_NORMAL_ARRAY_TYPE, GL_NORMAL_ARRAY_STRIDE, GL_NORMAL_ARRAY_BUFFER_BINDING},
    {GL_COLOR_ARRAY_SIZE, GL_COLOR_ARRAY_TYPE, GL_COLOR_ARRAY_STRIDE, GL_COLOR_ARRAY_BUFFER_BINDING},
    {GL_TEXTURE_COORD_ARRAY_SIZE, GL_TEXTURE_COORD_ARRAY_TYPE, GL_TEXTURE_COORD_ARRAY_STRIDE,
     GL_TEXTURE_COORD_ARRAY_BUFFER_BINDING},
    {0, GL_POINT_SIZE_ARRAY_TYPE_OES, GL_POINT_SIZE_ARRAY_STRIDE_OES, GL_POINT_SIZE_ARRAY_BUFFER_BINDING_OES},
    {GL_MATRIX_INDEX_ARRAY_SIZE_OES, GL_MATRIX_INDEX_ARRAY_TYPE_OES, GL_MATRIX_INDEX_ARRAY_STRIDE_OES,
     GL_MATRIX_INDEX_ARRAY_BUFFER_BINDING_OES},
    {GL_WEIGHT_ARRAY_SIZE_OES, GL_WEIGHT_ARRAY_TYPE_OES, GL_WEIGHT_ARRAY_STRIDE_OES,
     GL_WEIGHT_ARRAY_BUFFER_BINDING_OES},
};
constexpr GLenum pointerNames[] = {GL_VERTEX_ARRAY_POINTER,         GL_NORMAL_ARRAY_POINTER,
                                   GL_COLOR_ARRAY_POINTER,          GL_TEXTURE_COORD_ARRAY_POINTER,
                                   GL_POINT_SIZE_ARRAY_POINTER_OES, GL_MATRIX_INDEX_ARRAY_POINTER_OES,
                                   GL_WEIGHT_ARRAY_POINTER_OES};
constexpr EsArray ArrayObject::*esArrays[] = {&ArrayObject::pointSizes, &ArrayObject::matrixIndices,
                                              &ArrayObject::weights};

// The array of that row; null if the host holds it.
const OwnArray *ownArray(const EsContext &context, size_t row) {
    const ArrayObject &object = context.vertices.arrays.bound();
    if (row > TexCoordSlot) return &(object.*esArrays[row - TexCoordSlot - 1]).array;
    const auto found = object.own.find(row == TexCoordSlot ? texCoordSlot() : static_cast<unsigned>(row));
    return found == object.own.end() ? nullptr : &found->second;
}

void switchArray(GLenum array, bool isOn) {
    EsContext *const context = EsContext::current();
    if (EsArray *const own = context ? context->vertices.arrays.bound().find(array) : nullptr) {
        own->isOn = isOn;
        return;
    }
    const auto names = {GL_VERTEX_ARRAY, GL_NORMAL_ARRAY, GL_COLOR_ARRAY, GL_TEXTURE_COORD_ARRAY};
    if (std::ranges::find(names, static_cast<int>(array)) == names.end()) return raise(GL_INVALID_ENUM);
    (isOn ? hostGl().enableClientState : hostGl().disableClientState)(array);
}

} // namespace

std::optional<GLint> ownArrayState(const EsContext &context, GLenum pname) {
    for (size_t row = 0; row < std::size(arrayNames); ++row) {
        const ArrayNames &names = arrayNames[row];
        if (pname != names.size && pname != names.type && pname != names.stride && pname != names.buffer) continue;
        const OwnArray *const array = ownArray(context, row);
        if (!array) return std::nullopt;
        if (pname == names.size) return array->size;
        if (pname == names.type) return static_cast<GLint>(array->type);
        return pname == names.stride ? array->stride : static_cast<GLint>(array->buffer);
    }
    return std::nullopt;
}

namespace overrides {

void GL_APIENTRY vertexPointer(GLint size, GLenum type, GLsizei stride, const void *pointer) {
    const bool isHosts = type == GL_SHORT || type == GL_FLOAT;
    if (goesToHost(VertexSlot, {size, type, stride, pointer}, {2, 4, {GL_BYTE, GL_SHORT, GL_FIXED, GL_FLOAT}}, isHosts))
        hostGl().vertexPointer(size, type, stride, pointer);
}

void GL_APIENTRY normalPointer(GLenum type, GLsizei stride, const void *pointer) {
    const bool isHosts = type != GL_FIXED;
    if (goesToHost(NormalSlot, {3, type, stride, pointer}, {3, 3, {GL_BYTE, GL_SHORT, GL_FIXED, GL_FLOAT}}, isHosts))
        hostGl().normalPointer(type, stride, pointer);
}

void GL_APIENTRY colorPointer(GLint size, GLenum type, GLsizei stride, const void *pointer) {
    const bool isHosts = type != GL_FIXED;
    if (goesToHost(ColorSlot, {size, type, stride, pointer}, {4, 4, {GL_UNSIGNED_BYTE, GL_FIXED, GL_FLOAT}}, isHosts))
        hostGl().colorPointer(size, type, stride, pointer);
}

void GL_APIENTRY texCoordPointer(GLint size, GLenum type, GLsizei stride, const void *pointer) {
    const bool isHosts = type == GL_SHORT || type == GL_FLOAT;
    const Allowed allowed = {2, 4, {GL_BYTE, GL_SHORT, GL_FIXED, GL_FLOAT}};
    if (goesToHost(texCoordSlot(), {size, type, stride, pointer}, allowed, isHosts))
        hostGl().texCoordPointer(size, type, stride, pointer);
}

void GL_APIENTRY pointSizePointerOES(GLenum type, GLsizei stride, const void *pointer) {
    setEsArray(GL_POINT_SIZE_ARRAY_OES, {1, type, stride, pointer}, {1, 1, {GL_FIXED, GL_FLOAT}});
}

void GL_APIENTRY matrixIndexPointerOES(GLint size, GLenum type, GLsizei stride, const void *pointer) {
    setEsArray(GL_MATRIX_INDEX_ARRAY_OES, {size, type, stride, pointer},
               {1, MatrixPalette::unitCount, {GL_UNSIGNED_BYTE}});
}

void GL_APIENTRY weightPointerOES(GLint size, GLenum type, GLsizei stride, const void *pointer) {
    setEsArray(GL_WEIGHT_ARRAY_OES, {size, type, stride, pointer}, {1, MatrixPalette::unitCount, {GL_FIXED, GL_FLOAT}});
}

void GL_APIENTRY enableClientState(GLenum array) {
    switchArray(array, true);
}

void GL_APIENTRY disableClientState(GLenum array) {
    switchArray(array, false);
}

void GL_APIENTRY getPointerv(GLenum pname, void **params) {
    const EsContext *const context = EsContext::current();
    const auto row = static_cast<size_t>(std::ranges::find(pointerNames, pname) - pointerNames);
    const OwnArray *const array = context && row < std::size(pointerNames) ? ownArray(*context, row) : nullptr;
    if (!array) return hostGl().getPointerv(pname, params);
    if (params) *params = const_cast<void *>(array->pointer);
}

// Deleting a buffer detaches it from the arrays of the bound object, which then have offsets without data.
void GL_APIENTRY deleteBuffers(GLsizei n, const GLuint *buffers) {
    if (EsContext *const context = EsContext::current(); context && buffers && n > 0) {
        ArrayObject &object = context->vertices.arrays.bound();
        const auto leave = [&](OwnArray &array) {
            if (array.buffer == 0 || std::find(buffers, buffers + n, array.buffer) == buffers + n) return;
            array.buffer = 0;
            array.pointer = nullptr;
        };
        for (auto &[slot, array] : object.own)
            leave(array);
        for (const auto array : esArrays)
            leave((object.*array).array);
    }
    hostGl().deleteBuffers(n, buffers);
}

} // namespace overrides
