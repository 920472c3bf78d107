#include "programs/program_inputs.h"

#include "common/per_back_end/host_gl.h"
#include "programs/variable_types.h"
#include "vertices/vertex_array_state.h"

#include <algorithm>
#include <string>
#include <string_view>

ProgramInputs askProgramInputs(GLuint program) {
    const HostGl &gl = hostGl();
    GLint isLinked = GL_FALSE;
    GLint count = 0;
    GLint longest = 0;
    gl.getProgramiv(program, GL_LINK_STATUS, &isLinked);
    // After a failed link the previous executable remains in use.
    if (!isLinked) return {};
    gl.getProgramiv(program, GL_ACTIVE_ATTRIBUTES, &count);
    gl.getProgramiv(program, GL_ACTIVE_ATTRIBUTE_MAX_LENGTH, &longest);
    std::string name(static_cast<size_t>(std::max(longest, 1)), '\0');
    ProgramInputs inputs = {0, false};
    for (GLint index = 0; index < count; ++index) {
        GLint size = 0;
        GLenum type = 0;
        gl.getActiveAttrib(program, static_cast<GLuint>(index), longest, nullptr, &size, &type, name.data());
        const GLint location = gl.getAttribLocation(program, name.c_str());
        // A built-in input.
        if (location < 0) {
            if (name.c_str() == std::string_view("gl_VertexID")) inputs.readsVertexId = true;
            continue;
        }
        for (GLuint column = 0; column < static_cast<GLuint>(variableType(type).columns * size); ++column)
            inputs.attribs |= 1u << ((static_cast<GLuint>(location) + column) % VertexArrayState::maxAttribs);
    }
    return inputs;
}
