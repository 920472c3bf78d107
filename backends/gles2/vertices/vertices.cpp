#include "vertices/vertices.h"

#include "common/per_back_end/host_gl.h"

#include <algorithm>

Vertices::Vertices(GLint major) : m_major(major) {
    const HostGl &gl = hostGl();
    GLint attribCount = 0;
    gl.getIntegerv(GL_MAX_VERTEX_ATTRIBS, &attribCount);
    maxAttribs = std::min(static_cast<GLuint>(attribCount), VertexArrayState::maxAttribs);
    gl.genVertexArrays(1, &defaultObject);
    gl.bindVertexArray(defaultObject);
}
