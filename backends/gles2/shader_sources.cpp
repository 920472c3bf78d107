// ES takes a source without "#version" as version 100, desktop OpenGL as 1.10. The directive goes in front of it on its
// way to the host and off again when the application asks for its source.
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"

#include <algorithm>
#include <span>
#include <string>

namespace {

// Its odd blanks tell it from a source that an application wrote. The line directive keeps the numbers in the log
// right.
constexpr std::string_view addedHead = "#version  100\n#line  1\n";

constexpr std::string_view blanks = " \t\v\f\r\n";

// What follows blanks and comments.
std::string_view firstToken(std::string_view source) {
    for (;;) {
        source.remove_prefix(std::min(source.find_first_not_of(blanks), source.size()));
        const std::string_view end = source.starts_with("//") ? "\n" : "*/";
        if (!source.starts_with("//") && !source.starts_with("/*")) return source;
        const size_t close = source.find(end, 2);
        if (close == std::string_view::npos) return {};
        source.remove_prefix(close + end.size());
    }
}

bool hasVersion(std::string_view source) {
    source = firstToken(source);
    if (!source.starts_with('#')) return false;
    source.remove_prefix(1);
    source.remove_prefix(std::min(source.find_first_not_of(" \t"), source.size()));
    return source.starts_with("version");
}

std::string joined(std::span<const GLchar *const> strings, const GLint *lengths) {
    std::string source;
    for (size_t index = 0; index < strings.size(); ++index) {
        const bool isMeasured = lengths && lengths[index] >= 0;
        source += isMeasured ? std::string_view(strings[index], static_cast<size_t>(lengths[index])) : strings[index];
    }
    return source;
}

// As the application gave it; empty without a source or a shader.
std::string sourceOf(GLuint shader) {
    GLint size = 0;
    hostGl().getShaderiv(shader, GL_SHADER_SOURCE_LENGTH, &size);
    if (size <= 1) return {};
    std::string source(static_cast<size_t>(size), '\0');
    GLsizei length = 0;
    hostGl().getShaderSource(shader, size, &length, source.data());
    source.resize(static_cast<size_t>(length));
    return source.starts_with(addedHead) ? source.substr(addedHead.size()) : source;
}

} // namespace

namespace overrides {

void GL_APIENTRY shaderSource(GLuint shader, GLsizei count, const GLchar *const *string, const GLint *length) {
    const HostGl &gl = hostGl();
    const EsContext *const context = EsContext::current();
    const bool isWellFormed =
        count > 0 && string && std::ranges::find(string, string + count, nullptr) == string + count;
    // What is malformed goes on as it is, and the host raises the error.
    if (!context || !context->hasEsShaders || !isWellFormed) return gl.shaderSource(shader, count, string, length);

    const std::string source = joined({string, static_cast<size_t>(count)}, length);
    if (hasVersion(source)) return gl.shaderSource(shader, count, string, length);
    const std::string whole = std::string(addedHead) + source;
    const GLchar *const text = whole.c_str();
    const GLint size = static_cast<GLint>(whole.size());
    gl.shaderSource(shader, 1, &text, &size);
}

void GL_APIENTRY getShaderSource(GLuint shader, GLsizei bufSize, GLsizei *length, GLchar *source) {
    const std::string text = bufSize > 0 && source && EsContext::current() ? sourceOf(shader) : std::string();
    if (text.empty()) return hostGl().getShaderSource(shader, bufSize, length, source);
    const size_t copied = std::min(text.size(), static_cast<size_t>(bufSize) - 1);
    std::copy_n(text.begin(), copied, source);
    source[copied] = '\0';
    if (length) *length = static_cast<GLsizei>(copied);
}

void GL_APIENTRY getShaderiv(GLuint shader, GLenum pname, GLint *params) {
    hostGl().getShaderiv(shader, pname, params);
    if (pname != GL_SHADER_SOURCE_LENGTH || !params || *params <= 1 || !EsContext::current()) return;
    const std::string text = sourceOf(shader);
    // The length counts the null; without a text it is 0.
    if (!text.empty()) *params = static_cast<GLint>(text.size()) + 1;
}

} // namespace overrides
