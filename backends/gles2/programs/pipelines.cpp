#include "programs/pipelines.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>
#include <array>
#include <string>

namespace {

GLint askShader(GLuint shader, GLenum pname) {
    GLint value = 0;
    hostGl().getShaderiv(shader, pname, &value);
    return value;
}

std::string sourceOf(GLuint shader) {
    std::string source(static_cast<size_t>(std::max(askShader(shader, GL_SHADER_SOURCE_LENGTH), 1)), '\0');
    GLsizei length = 0;
    hostGl().getShaderSource(shader, static_cast<GLsizei>(source.size()), &length, source.data());
    source.resize(static_cast<size_t>(length));
    return source;
}

GLuint programOf(GLuint pipeline, GLenum stage) {
    GLint program = 0;
    hostGl().getProgramPipelineiv(pipeline, stage, &program);
    return static_cast<GLuint>(program);
}

// Called when a bind or a program change may make the pipeline valid or invalid.
void forgetPipeline() {
    if (EsContext *const context = EsContext::current()) context->programs.forgetPipeline();
}

} // namespace

ProgramEnd declaredEnd(GLuint program) {
    std::array<GLuint, 2> shaders = {};
    GLsizei count = 0;
    hostGl().getAttachedShaders(program, shaders.size(), &count, shaders.data());
    if (count != 1) return {};
    const auto stage = static_cast<GLenum>(askShader(shaders[0], GL_SHADER_TYPE));
    if (stage != GL_VERTEX_SHADER && stage != GL_FRAGMENT_SHADER) return {};
    const std::string_view direction = stage == GL_VERTEX_SHADER ? "out" : "in";
    return {stage, declaredInterface(sourceOf(shaders[0]), stage, direction)};
}

bool isPipelineBroken(SharedPrograms &shared, GLuint pipeline) {
    const auto from = shared.ends.find(programOf(pipeline, GL_VERTEX_SHADER));
    const auto to = shared.ends.find(programOf(pipeline, GL_FRAGMENT_SHADER));
    if (!from || !to || from->stage != GL_VERTEX_SHADER || to->stage != GL_FRAGMENT_SHADER) return false;
    // With a stage between them the two interfaces do not meet.
    if (programOf(pipeline, GL_GEOMETRY_SHADER) || programOf(pipeline, GL_TESS_EVALUATION_SHADER)) return false;
    return from->interface && to->interface && *from->interface != *to->interface;
}

bool Programs::lookAtPipeline(SharedPrograms &shared) {
    GLint program = 0;
    GLint pipeline = 0;
    hostGl().getIntegerv(GL_CURRENT_PROGRAM, &program);
    if (program == 0) hostGl().getIntegerv(GL_PROGRAM_PIPELINE_BINDING, &pipeline);
    m_isPipelineBroken = pipeline != 0 && ::isPipelineBroken(shared, static_cast<GLuint>(pipeline));
    m_isPipelineKnown = true;
    return m_isPipelineBroken;
}

namespace overrides {

void GL_APIENTRY bindProgramPipeline(GLuint pipeline) {
    hostGl().bindProgramPipeline(pipeline);
    forgetPipeline();
}

void GL_APIENTRY useProgramStages(GLuint pipeline, GLbitfield stages, GLuint program) {
    hostGl().useProgramStages(pipeline, stages, program);
    forgetPipeline();
}

void GL_APIENTRY deleteProgramPipelines(GLsizei n, const GLuint *pipelines) {
    hostGl().deleteProgramPipelines(n, pipelines);
    EsContext *const context = EsContext::current();
    if (!context) return;
    context->programs.forgetPipeline();
    for (GLsizei index = 0; index < n && pipelines; ++index)
        context->programs.invalidPipelines.erase(pipelines[index]);
}

void GL_APIENTRY validateProgramPipeline(GLuint pipeline) {
    hostGl().validateProgramPipeline(pipeline);
    EsContext *const context = EsContext::current();
    if (!context || pipeline == 0) return;
    const bool isBroken = isPipelineBroken(context->shared->programs, pipeline);
    if (isBroken) {
        context->programs.invalidPipelines.insert(pipeline);
    } else {
        context->programs.invalidPipelines.erase(pipeline);
    }
}

void GL_APIENTRY getProgramPipelineiv(GLuint pipeline, GLenum pname, GLint *params) {
    hostGl().getProgramPipelineiv(pipeline, pname, params);
    const EsContext *const context = EsContext::current();
    const bool isValidity = context && pname == GL_VALIDATE_STATUS && params;
    if (isValidity && context->programs.invalidPipelines.contains(pipeline)) *params = GL_FALSE;
}

} // namespace overrides
