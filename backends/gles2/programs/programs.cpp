// Programs. ES allows one shader per stage and requires a vertex and a fragment shader; desktop OpenGL allows several
// per stage, and either stage alone.
#include "programs/programs.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "programs/pipelines.h"
#include "programs/program_limits.h"

#include <algorithm>
#include <vector>

namespace {

GLint typeOf(GLuint shader) {
    GLint type = 0;
    hostGl().getShaderiv(shader, GL_SHADER_TYPE, &type);
    return type;
}

// Empty for an invalid program.
std::vector<GLint> attachedTypes(GLuint program) {
    const HostGl &gl = hostGl();
    if (!gl.isProgram(program)) return {};
    GLint count = 0;
    gl.getProgramiv(program, GL_ATTACHED_SHADERS, &count);
    std::vector<GLuint> shaders(static_cast<size_t>(std::max(count, 0)));
    gl.getAttachedShaders(program, count, &count, shaders.data());
    std::vector<GLint> types;
    std::ranges::transform(shaders, std::back_inserter(types), typeOf);
    return types;
}

bool isWhole(const EsContext &context, GLuint program) {
    // Before the link the host does not report whether the program is separable.
    if (context.shared->programs.separable.find(program)) return true;
    const std::vector<GLint> types = attachedTypes(program);
    const auto has = [&](GLint type) { return std::ranges::find(types, type) != types.end(); };
    // The host checks the others: programs without shaders or with a compute shader.
    return has(GL_VERTEX_SHADER) == has(GL_FRAGMENT_SHADER) || has(GL_COMPUTE_SHADER);
}

// An uncompiled shader makes the host's link fail, with a log.
void linkInVain(GLuint program) {
    const HostGl &gl = hostGl();
    const GLuint shader = gl.createShader(GL_FRAGMENT_SHADER);
    gl.attachShader(program, shader);
    gl.linkProgram(program);
    gl.detachShader(program, shader);
    gl.deleteShader(shader);
}

// All contexts of the group that draw with the program query its inputs again.
void forgetInputs(GLuint program) {
    if (EsContext *const context = EsContext::current()) context->shared->programs.forgetInputs(program);
}

void forgetSeparable(EsContext &context, GLuint program) {
    context.shared->programs.separable.remove(program);
    context.shared->programs.ends.remove(program);
}

// Records the interface for pipelines that use the program.
void noteEnd(GLuint program) {
    EsContext *const context = EsContext::current();
    if (!context || !context->shared->programs.separable.find(program)) return;
    context->shared->programs.ends.set(program, declaredEnd(program));
    context->programs.forgetPipeline();
}

} // namespace

ProgramInputs Programs::look(SharedPrograms &shared) {
    m_changes = shared.changes.load(std::memory_order_relaxed);
    m_isKnown = true;
    GLint current = 0;
    hostGl().getIntegerv(GL_CURRENT_PROGRAM, &current);
    const auto program = static_cast<GLuint>(current);
    if (program == 0) return m_inputs = {};
    if (const auto known = shared.inputs.find(program)) return m_inputs = *known;
    m_inputs = askProgramInputs(program);
    shared.inputs.set(program, m_inputs);
    return m_inputs;
}

namespace overrides {

void GL_APIENTRY useProgram(GLuint program) {
    hostGl().useProgram(program);
    if (EsContext *const context = EsContext::current()) context->programs.forgetCurrent();
}

void GL_APIENTRY attachShader(GLuint program, GLuint shader) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    if (context && gl.isShader(shader)) {
        const std::vector<GLint> types = attachedTypes(program);
        const bool isTaken = std::ranges::find(types, typeOf(shader)) != types.end();
        if (isTaken) return context->raise(GL_INVALID_OPERATION);
    }
    gl.attachShader(program, shader);
}

void GL_APIENTRY linkProgram(GLuint program) {
    const EsContext *const context = EsContext::current();
    if (context && !isWhole(*context, program)) {
        linkInVain(program);
    } else {
        hostGl().linkProgram(program);
        if (context && !isWithinLimits(*context, program)) linkInVain(program);
    }
    forgetInputs(program);
    noteEnd(program);
}

void GL_APIENTRY transformFeedbackVaryings(GLuint program, GLsizei count, const GLchar *const *varyings,
                                           GLenum bufferMode) {
    EsContext *const context = EsContext::current();
    const bool isOver = context && bufferMode == GL_SEPARATE_ATTRIBS &&
                        count > context->announced.most(GL_MAX_TRANSFORM_FEEDBACK_SEPARATE_ATTRIBS);
    if (isOver) return context->raise(GL_INVALID_VALUE);
    hostGl().transformFeedbackVaryings(program, count, varyings, bufferMode);
}

void GL_APIENTRY programBinary(GLuint program, GLenum format, const void *binary, GLsizei length) {
    hostGl().programBinary(program, format, binary, length);
    forgetInputs(program);
}

GLuint GL_APIENTRY createProgram() {
    const GLuint program = hostGl().createProgram();
    // A program with this name may have existed before.
    forgetInputs(program);
    if (EsContext *const context = EsContext::current()) forgetSeparable(*context, program);
    return program;
}

void GL_APIENTRY programParameteri(GLuint program, GLenum pname, GLint value) {
    const HostGl &gl = hostGl();
    gl.programParameteri(program, pname, value);
    EsContext *const context = EsContext::current();
    if (!context || pname != GL_PROGRAM_SEPARABLE || !gl.isProgram(program)) return;
    SharedMap<bool> &separable = context->shared->programs.separable;
    if (value == GL_TRUE) separable.set(program, true);
    if (value == GL_FALSE) separable.remove(program);
}

GLuint GL_APIENTRY createShaderProgramv(GLenum type, GLsizei count, const GLchar *const *strings) {
    const EsContext *const context = EsContext::current();
    if (!context || count < 0 || !strings) return hostGl().createShaderProgramv(type, count, strings);
    // Uses the equivalent steps, so that the source is translated as all sources are.
    const GLuint shader = createShader(type);
    if (shader == 0) return 0;
    const GLuint program = createProgram();
    shaderSource(shader, count, strings, nullptr);
    const HostGl &gl = hostGl();
    gl.compileShader(shader);
    GLint isCompiled = GL_FALSE;
    gl.getShaderiv(shader, GL_COMPILE_STATUS, &isCompiled);
    programParameteri(program, GL_PROGRAM_SEPARABLE, GL_TRUE);
    if (isCompiled) {
        gl.attachShader(program, shader);
        linkProgram(program);
        gl.detachShader(program, shader);
    }
    gl.deleteShader(shader);
    return program;
}

} // namespace overrides
