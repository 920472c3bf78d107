#include "vertices/vertices.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"

#include <algorithm>
#include <limits>

namespace {

bool canStayMapped(const HostFeatures &host) {
    return host.carries(44, "GL_ARB_buffer_storage");
}

} // namespace

Vertices::Vertices(GLint major, const HostFeatures &host, GLint mostAttribs)
    : stream(canStayMapped(host)), indexStream(canStayMapped(host)), m_major(major),
      m_mostStride(std::numeric_limits<GLsizei>::max()) {
    const HostGl &gl = hostGl();
    GLint attribCount = 0;
    gl.getIntegerv(GL_MAX_VERTEX_ATTRIBS, &attribCount);
    maxAttribs = std::min(static_cast<GLuint>(std::min(attribCount, mostAttribs)), VertexArrayState::maxAttribs);
    if (host.version() >= 44) gl.getIntegerv(GL_MAX_VERTEX_ATTRIB_STRIDE, &m_mostStride);
    gl.genVertexArrays(1, &defaultObject);
    gl.bindVertexArray(defaultObject);
}

bool isBeyondAttribs(GLuint index) {
    EsContext *const context = EsContext::current();
    const bool isBeyond = context && index >= context->vertices.maxAttribs;
    if (isBeyond) context->raise(GL_INVALID_VALUE);
    return isBeyond;
}

void Vertices::restoreArrayBuffer() {
    const HostGl &gl = hostGl();
    // Another context may have deleted the buffer; the host generates an error for a deleted name.
    if (arrayBuffer && !gl.isBuffer(arrayBuffer)) arrayBuffer = 0;
    gl.bindBuffer(GL_ARRAY_BUFFER, arrayBuffer);
}
