// What an application asks about its context.
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"

#include <optional>
#include <utility>

namespace {

// Nothing where the host's answer is right.
std::optional<GLint> ownAnswer(GLenum pname) {
    const EsContext *const context = EsContext::current();
    if (!context) return std::nullopt;
    switch (pname) {
    case GL_MAJOR_VERSION:
        return context->major;
    case GL_MINOR_VERSION:
        return context->minor;
    case GL_NUM_EXTENSIONS:
        return static_cast<GLint>(context->extensionNames.size());
    case GL_VERTEX_ARRAY_BINDING: {
        GLint bound = 0;
        hostGl().getIntegerv(pname, &bound);
        return static_cast<GLuint>(bound) == context->defaultVertexArray ? 0 : bound;
    }
    default:
        return std::nullopt;
    }
}

const GLubyte *asBytes(const std::string &text) {
    return reinterpret_cast<const GLubyte *>(text.c_str());
}

} // namespace

namespace overrides {

GLenum GL_APIENTRY getError() {
    EsContext *const context = EsContext::current();
    if (context && context->pendingError != GL_NO_ERROR) return std::exchange(context->pendingError, GL_NO_ERROR);
    return hostGl().getError();
}

const GLubyte *GL_APIENTRY getString(GLenum name) {
    if (const EsContext *const context = EsContext::current()) {
        if (name == GL_VERSION) return asBytes(context->version);
        if (name == GL_SHADING_LANGUAGE_VERSION) return asBytes(context->shadingLanguageVersion);
        // A core context has no such string at all.
        if (name == GL_EXTENSIONS) return asBytes(context->extensions);
    }
    return hostGl().getString(name);
}

const GLubyte *GL_APIENTRY getStringi(GLenum name, GLuint index) {
    const EsContext *const context = EsContext::current();
    if (!context || name != GL_EXTENSIONS) return hostGl().getStringi(name, index);
    if (index < context->extensionNames.size()) return asBytes(context->extensionNames[index]);
    // Past the host's own end, so that the host raises the error.
    return hostGl().getStringi(name, ~0u);
}

void GL_APIENTRY getBooleanv(GLenum pname, GLboolean *data) {
    if (const auto answer = ownAnswer(pname)) {
        *data = *answer != 0;
        return;
    }
    hostGl().getBooleanv(pname, data);
}

void GL_APIENTRY getFloatv(GLenum pname, GLfloat *data) {
    if (const auto answer = ownAnswer(pname)) {
        *data = static_cast<GLfloat>(*answer);
        return;
    }
    hostGl().getFloatv(pname, data);
}

void GL_APIENTRY getInteger64v(GLenum pname, GLint64 *data) {
    if (const auto answer = ownAnswer(pname)) {
        *data = *answer;
        return;
    }
    hostGl().getInteger64v(pname, data);
}

void GL_APIENTRY getIntegerv(GLenum pname, GLint *data) {
    if (const auto answer = ownAnswer(pname)) {
        *data = *answer;
        return;
    }
    hostGl().getIntegerv(pname, data);
}

} // namespace overrides
