// Commands on the buffer of a target. If the application has no index buffer, the host may have one of this library's
// bound, which the application must not access.
#include "common/host_library.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "vertices/client_arrays.h"

namespace {

// The host's functions, after binding the application's buffer to the target.
const HostGl &hostFor(GLenum target) {
    if (target == GL_ELEMENT_ARRAY_BUFFER) {
        if (EsContext *const context = EsContext::current()) hideStreamedIndices(*context);
    }
    return hostGl();
}

} // namespace

namespace overrides {

void GL_APIENTRY bufferData(GLenum target, GLsizeiptr size, const void *data, GLenum usage) {
    hostFor(target).bufferData(target, size, data, usage);
}

void GL_APIENTRY bufferStorage(GLenum target, GLsizeiptr size, const void *data, GLbitfield flags) {
    static const auto host = reinterpret_cast<decltype(&bufferStorage)>(hostFunction("glBufferStorage"));
    hostFor(target);
    if (host) host(target, size, data, flags);
}

void GL_APIENTRY bufferSubData(GLenum target, GLintptr offset, GLsizeiptr size, const void *data) {
    hostFor(target).bufferSubData(target, offset, size, data);
}

void GL_APIENTRY copyBufferSubData(GLenum readTarget, GLenum writeTarget, GLintptr readOffset, GLintptr writeOffset,
                                   GLsizeiptr size) {
    hostFor(readTarget);
    hostFor(writeTarget).copyBufferSubData(readTarget, writeTarget, readOffset, writeOffset, size);
}

void GL_APIENTRY flushMappedBufferRange(GLenum target, GLintptr offset, GLsizeiptr length) {
    hostFor(target).flushMappedBufferRange(target, offset, length);
}

void GL_APIENTRY getBufferParameteri64v(GLenum target, GLenum pname, GLint64 *params) {
    hostFor(target).getBufferParameteri64v(target, pname, params);
}

void GL_APIENTRY getBufferParameteriv(GLenum target, GLenum pname, GLint *params) {
    hostFor(target).getBufferParameteriv(target, pname, params);
}

void GL_APIENTRY getBufferPointerv(GLenum target, GLenum pname, void **params) {
    hostFor(target).getBufferPointerv(target, pname, params);
}

void *GL_APIENTRY mapBuffer(GLenum target, GLenum access) {
    return hostFor(target).mapBuffer(target, access);
}

void *GL_APIENTRY mapBufferRange(GLenum target, GLintptr offset, GLsizeiptr length, GLbitfield access) {
    return hostFor(target).mapBufferRange(target, offset, length, access);
}

GLboolean GL_APIENTRY unmapBuffer(GLenum target) {
    return hostFor(target).unmapBuffer(target);
}

} // namespace overrides
