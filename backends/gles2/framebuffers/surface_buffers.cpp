// The surface has one colour buffer, which ES names GL_BACK whatever the host's buffers are.
#include "framebuffers/surface_buffers.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>
#include <span>

namespace {

// The surface accepts its one buffer or none. An attachment is only accepted at its own index, whereas desktop OpenGL
// accepts any order. Invalid enumerants are checked by the host.
bool isDrawBufferList(const EsContext &context, std::span<const GLenum> buffers) {
    const bool isSurface = context.framebuffers.drawn() == 0;
    if (isSurface) return buffers.size() == 1 && (buffers[0] == GL_BACK || buffers[0] == GL_NONE);
    for (size_t index = 0; index < buffers.size(); ++index) {
        const bool isAttachment = buffers[index] >= GL_COLOR_ATTACHMENT0 && buffers[index] <= GL_COLOR_ATTACHMENT31;
        if (buffers[index] == GL_BACK) return false;
        if (isAttachment && buffers[index] != GL_COLOR_ATTACHMENT0 + index) return false;
    }
    return true;
}

} // namespace

GLenum hostBuffer(GLenum buffer) {
    constexpr GLenum doubleBuffer = 0x0C32;
    if (buffer != GL_BACK) return buffer;
    GLint isDouble = 0;
    hostGl().getIntegerv(doubleBuffer, &isDouble);
    return isDouble ? hostBackLeft : hostFrontLeft;
}

GLenum esBuffer(GLenum buffer) {
    const bool isOfSurface = buffer == hostBackLeft || buffer == hostFrontLeft || buffer == GL_FRONT;
    return isOfSurface ? GLenum(GL_BACK) : buffer;
}

namespace overrides {

void GL_APIENTRY readBuffer(GLenum src) {
    EsContext *const context = EsContext::current();
    if (!context) return hostGl().readBuffer(src);
    const bool isAttachment = src >= GL_COLOR_ATTACHMENT0 && src <= GL_COLOR_ATTACHMENT31;
    // The host also accepts sides and the front buffer.
    if (!isAttachment && src != GL_BACK && src != GL_NONE) return context->raise(GL_INVALID_ENUM);
    hostGl().readBuffer(hostBuffer(src));
}

void GL_APIENTRY drawBuffers(GLsizei n, const GLenum *bufs) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (!context || n < 0 || !bufs) return gl.drawBuffers(n, bufs);
    GLint most = 0;
    gl.getIntegerv(GL_MAX_DRAW_BUFFERS, &most);
    if (n > std::min(most, context->announced.most(GL_MAX_DRAW_BUFFERS))) return context->raise(GL_INVALID_VALUE);
    if (!isDrawBufferList(*context, {bufs, static_cast<size_t>(n)})) return context->raise(GL_INVALID_OPERATION);
    const GLenum surfaceBuffer = n == 1 ? hostBuffer(bufs[0]) : GL_NONE;
    gl.drawBuffers(n, context->framebuffers.drawn() == 0 ? &surfaceBuffer : bufs);
}

} // namespace overrides
