// Translates sources for the host's compiler; queries return them to the application as it passed them.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "programs/shader_constants.h"
#include "programs/shader_language.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>

namespace {

std::string joined(std::span<const GLchar *const> strings, const GLint *lengths) {
    std::string source;
    for (size_t index = 0; index < strings.size(); ++index) {
        const bool isMeasured = lengths && lengths[index] >= 0;
        source += isMeasured ? std::string_view(strings[index], static_cast<size_t>(lengths[index])) : strings[index];
    }
    return source;
}

// The application's source; nothing if the host has the same.
std::optional<std::string> ownSource(GLuint shader) {
    EsContext *const context = EsContext::current();
    return context ? context->shared->programs.shaderSources.find(shader) : std::nullopt;
}

} // namespace

namespace overrides {

GLuint GL_APIENTRY createShader(GLenum type) {
    const GLuint shader = hostGl().createShader(type);
    // A shader with this name may have existed before.
    if (EsContext *const context = EsContext::current()) context->shared->programs.shaderSources.remove(shader);
    return shader;
}

void GL_APIENTRY shaderSource(GLuint shader, GLsizei count, const GLchar *const *string, const GLint *length) {
    const HostGl &gl = hostGl();
    EsContext *const context = EsContext::current();
    const bool isWellFormed =
        count > 0 && string && std::ranges::find(string, string + count, nullptr) == string + count;
    // Malformed calls are passed on, so the host raises the error.
    if (!context || !isWellFormed || !gl.isShader(shader)) return gl.shaderSource(shader, count, string, length);

    const std::string source = joined({string, static_cast<size_t>(count)}, length);
    const std::string whole =
        withConstantsOf(context->announced, hostShaderSource(source, context->major, context->minor));
    context->shared->programs.shaderSources.remove(shader);
    if (whole != source) context->shared->programs.shaderSources.set(shader, source);
    const GLchar *const text = whole.c_str();
    const GLint size = static_cast<GLint>(whole.size());
    gl.shaderSource(shader, 1, &text, &size);
}

void GL_APIENTRY getShaderSource(GLuint shader, GLsizei bufSize, GLsizei *length, GLchar *source) {
    const auto text = bufSize > 0 && source ? ownSource(shader) : std::nullopt;
    if (!text) return hostGl().getShaderSource(shader, bufSize, length, source);
    const size_t copied = std::min(text->size(), static_cast<size_t>(bufSize) - 1);
    std::copy_n(text->begin(), copied, source);
    source[copied] = '\0';
    if (length) *length = static_cast<GLsizei>(copied);
}

void GL_APIENTRY getShaderiv(GLuint shader, GLenum pname, GLint *params) {
    hostGl().getShaderiv(shader, pname, params);
    if (pname != GL_SHADER_SOURCE_LENGTH || !params) return;
    // The length includes the terminator; it is 0 for an empty source.
    if (const auto text = ownSource(shader)) *params = text->empty() ? 0 : static_cast<GLint>(text->size()) + 1;
}

} // namespace overrides
