#include "programs/program_limits.h"

#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"
#include "programs/variable_types.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

struct Variable {
    GLenum type;
    GLint count;
    bool isInBlock;
    bool isOfVertices, isOfFragments; // the shaders that read it
};

// Rows of four components, packed as the shading language defines: wide variables first, then narrow ones beside them.
class PackedRows {
public:
    void add(const VariableType &type, GLint count) {
        m_vectors[static_cast<size_t>(type.rows)] += type.columns * count;
    }
    [[nodiscard]] GLint count() const {
        const GLint pairs = (m_vectors[2] + 1) / 2;
        const GLint free = m_vectors[3] + (m_vectors[2] % 2) * 2;
        return m_vectors[4] + m_vectors[3] + pairs + (std::max(m_vectors[1] - free, 0) + 3) / 4;
    }

private:
    std::array<GLint, 5> m_vectors = {}; // by components
};

GLint resourceCount(GLuint program, GLenum interface) {
    GLint count = 0;
    hostGl().getProgramInterfaceiv(program, interface, GL_ACTIVE_RESOURCES, &count);
    return count;
}

// take: called with each variable of the interface that is not built in.
template <typename Take>
void forEachVariable(GLuint program, GLenum interface, Take take) {
    const HostGl &gl = hostGl();
    const bool isUniform = interface == GL_UNIFORM;
    const GLenum asked[] = {GL_TYPE, GL_ARRAY_SIZE, GL_REFERENCED_BY_VERTEX_SHADER, GL_REFERENCED_BY_FRAGMENT_SHADER,
                            GL_BLOCK_INDEX};
    const GLint count = resourceCount(program, interface);
    for (GLuint index = 0; index < static_cast<GLuint>(count); ++index) {
        GLint told[5] = {0, 0, 0, 0, -1};
        gl.getProgramResourceiv(program, interface, index, isUniform ? 5 : 4, asked, 5, nullptr, told);
        char name[4] = "";
        gl.getProgramResourceName(program, interface, index, sizeof name, nullptr, name);
        if (name == std::string_view("gl_")) continue;
        take(Variable{static_cast<GLenum>(told[0]), std::max(told[1], 1), told[4] >= 0, told[2] != 0, told[3] != 0});
    }
}

bool areUniformsWithin(const Announcement &announced, GLuint program) {
    PackedRows ofVertices, ofFragments;
    GLint vertexSamplers = 0, fragmentSamplers = 0;
    forEachVariable(program, GL_UNIFORM, [&](const Variable &uniform) {
        if (uniform.isInBlock) return;
        const VariableType type = variableType(uniform.type);
        if (type.rows == 0) {
            vertexSamplers += uniform.isOfVertices ? uniform.count : 0;
            fragmentSamplers += uniform.isOfFragments ? uniform.count : 0;
        } else {
            if (uniform.isOfVertices) ofVertices.add(type, uniform.count);
            if (uniform.isOfFragments) ofFragments.add(type, uniform.count);
        }
    });
    return ofVertices.count() <= announced.most(GL_MAX_VERTEX_UNIFORM_VECTORS) &&
           ofFragments.count() <= announced.most(GL_MAX_FRAGMENT_UNIFORM_VECTORS) &&
           vertexSamplers <= announced.most(GL_MAX_VERTEX_TEXTURE_IMAGE_UNITS) &&
           fragmentSamplers <= announced.most(GL_MAX_TEXTURE_IMAGE_UNITS) &&
           vertexSamplers + fragmentSamplers <= announced.most(GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS);
}

bool areBlocksWithin(const Announcement &announced, GLuint program) {
    const GLenum asked[] = {GL_BUFFER_DATA_SIZE, GL_REFERENCED_BY_VERTEX_SHADER, GL_REFERENCED_BY_FRAGMENT_SHADER};
    GLint vertexBlocks = 0, fragmentBlocks = 0;
    const GLint count = resourceCount(program, GL_UNIFORM_BLOCK);
    for (GLuint index = 0; index < static_cast<GLuint>(count); ++index) {
        GLint told[3] = {};
        hostGl().getProgramResourceiv(program, GL_UNIFORM_BLOCK, index, 3, asked, 3, nullptr, told);
        if (told[0] > announced.most(GL_MAX_UNIFORM_BLOCK_SIZE)) return false;
        vertexBlocks += told[1] != 0;
        fragmentBlocks += told[2] != 0;
    }
    return vertexBlocks <= announced.most(GL_MAX_VERTEX_UNIFORM_BLOCKS) &&
           fragmentBlocks <= announced.most(GL_MAX_FRAGMENT_UNIFORM_BLOCKS) &&
           vertexBlocks + fragmentBlocks <= announced.most(GL_MAX_COMBINED_UNIFORM_BLOCKS);
}

// Checks the attributes with a location. Each element of an array has one.
bool areAttribsWithin(const Announcement &announced, GLuint program) {
    GLint locations = 0;
    forEachVariable(program, GL_PROGRAM_INPUT,
                    [&](const Variable &attrib) { locations += variableType(attrib.type).columns * attrib.count; });
    return locations <= announced.most(GL_MAX_VERTEX_ATTRIBS);
}

GLuint attachedShader(GLuint program, GLint wanted) {
    std::array<GLuint, 8> shaders = {};
    GLsizei count = 0;
    hostGl().getAttachedShaders(program, shaders.size(), &count, shaders.data());
    for (GLsizei index = 0; index < count; ++index) {
        GLint type = 0;
        hostGl().getShaderiv(shaders[static_cast<size_t>(index)], GL_SHADER_TYPE, &type);
        if (type == wanted) return shaders[static_cast<size_t>(index)];
    }
    return 0;
}

// A program reports the inputs of its first stage. A temporary program with the fragment shader alone reports the
// varyings.
bool areVaryingsWithin(const Announcement &announced, GLuint program) {
    const GLint most = std::min(announced.most(GL_MAX_VARYING_VECTORS), announced.most(GL_MAX_VARYING_COMPONENTS) / 4);
    const GLuint shader = attachedShader(program, GL_FRAGMENT_SHADER);
    if (shader == 0 || !attachedShader(program, GL_VERTEX_SHADER)) return true;
    const HostGl &gl = hostGl();
    const GLuint alone = gl.createProgram();
    gl.programParameteri(alone, GL_PROGRAM_SEPARABLE, GL_TRUE);
    gl.attachShader(alone, shader);
    gl.linkProgram(alone);
    PackedRows rows;
    forEachVariable(alone, GL_PROGRAM_INPUT,
                    [&](const Variable &varying) { rows.add(variableType(varying.type), varying.count); });
    gl.deleteProgram(alone);
    return rows.count() <= most;
}

bool areCapturesWithin(const Announcement &announced, GLuint program) {
    const HostGl &gl = hostGl();
    GLint count = 0, mode = 0, all = 0;
    gl.getProgramiv(program, GL_TRANSFORM_FEEDBACK_VARYINGS, &count);
    gl.getProgramiv(program, GL_TRANSFORM_FEEDBACK_BUFFER_MODE, &mode);
    const bool isSeparate = mode == GL_SEPARATE_ATTRIBS;
    for (GLuint index = 0; index < static_cast<GLuint>(count); ++index) {
        GLsizei size = 0;
        GLenum type = GL_NONE;
        char name[2];
        gl.getTransformFeedbackVarying(program, index, sizeof name, nullptr, &size, &type, name);
        const VariableType is = variableType(type);
        const GLint components = is.columns * is.rows * size;
        if (isSeparate && components > announced.most(GL_MAX_TRANSFORM_FEEDBACK_SEPARATE_COMPONENTS)) return false;
        all += components;
    }
    return isSeparate || all <= announced.most(GL_MAX_TRANSFORM_FEEDBACK_INTERLEAVED_COMPONENTS);
}

} // namespace

bool isWithinLimits(const EsContext &context, GLuint program) {
    const Announcement &announced = context.announced;
    if (!announced.hasLimits() || !context.host.carries(43, "GL_ARB_program_interface_query")) return true;
    return areUniformsWithin(announced, program) && areBlocksWithin(announced, program) &&
           areCapturesWithin(announced, program) &&
           (!attachedShader(program, GL_VERTEX_SHADER) || areAttribsWithin(announced, program)) &&
           areVaryingsWithin(announced, program);
}
