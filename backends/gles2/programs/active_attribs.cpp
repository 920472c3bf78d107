#include "programs/active_attribs.h"

#include "common/per_back_end/host_gl.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

GLuint columns(GLenum type) {
    switch (type) {
    case GL_FLOAT_MAT2:
    case GL_FLOAT_MAT2x3:
    case GL_FLOAT_MAT2x4:
        return 2;
    case GL_FLOAT_MAT3:
    case GL_FLOAT_MAT3x2:
    case GL_FLOAT_MAT3x4:
        return 3;
    case GL_FLOAT_MAT4:
    case GL_FLOAT_MAT4x2:
    case GL_FLOAT_MAT4x3:
        return 4;
    default:
        return 1;
    }
}

uint32_t askHost(GLuint program) {
    const HostGl &gl = hostGl();
    GLint count = 0;
    GLint longest = 0;
    gl.getProgramiv(program, GL_ACTIVE_ATTRIBUTES, &count);
    gl.getProgramiv(program, GL_ACTIVE_ATTRIBUTE_MAX_LENGTH, &longest);
    std::string name(static_cast<size_t>(std::max(longest, 1)), '\0');
    uint32_t mask = 0;
    for (GLint index = 0; index < count; ++index) {
        GLint size = 0;
        GLenum type = 0;
        gl.getActiveAttrib(program, static_cast<GLuint>(index), longest, nullptr, &size, &type, name.data());
        const GLint location = gl.getAttribLocation(program, name.c_str());
        // Those that the system fills in have none.
        if (location < 0) continue;
        for (GLuint column = 0; column < columns(type) * static_cast<GLuint>(size); ++column)
            mask |= 1u << ((static_cast<GLuint>(location) + column) % VertexArrayState::maxAttribs);
    }
    return mask;
}

} // namespace

uint32_t activeAttribs(EsContext &context) {
    GLint current = 0;
    hostGl().getIntegerv(GL_CURRENT_PROGRAM, &current);
    // A pipeline, or nothing.
    if (current == 0) return ~0u;
    const auto program = static_cast<GLuint>(current);
    if (const auto known = context.shared->programs.activeAttribs.find(program)) return *known;
    const uint32_t mask = askHost(program);
    context.shared->programs.activeAttribs.set(program, mask);
    return mask;
}

void forgetActiveAttribs(GLuint program) {
    if (EsContext *const context = EsContext::current()) context->shared->programs.activeAttribs.remove(program);
}
