// Labels of objects, by the application's names.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace {

GLuint hostName(GLenum identifier, GLuint name) {
    const EsContext *const context = EsContext::current();
    if (!context) return name;
    switch (identifier) {
    case GL_BUFFER:
        return context->shared->buffers.names.find(name);
    case GL_FRAMEBUFFER:
        return context->framebuffers.names.find(name);
    case GL_RENDERBUFFER:
        return context->shared->renderbuffers.find(name);
    case GL_TEXTURE:
        return context->shared->textures.names.find(name);
    default:
        return name;
    }
}

// EXT_debug_label has identifiers of its own for the kinds of objects.
GLenum plainIdentifier(GLenum type) {
    switch (type) {
    case GL_BUFFER_OBJECT_EXT:
        return GL_BUFFER;
    case GL_PROGRAM_OBJECT_EXT:
        return GL_PROGRAM;
    case GL_PROGRAM_PIPELINE_OBJECT_EXT:
        return GL_PROGRAM_PIPELINE;
    case GL_QUERY_OBJECT_EXT:
        return GL_QUERY;
    case GL_SHADER_OBJECT_EXT:
        return GL_SHADER;
    case GL_VERTEX_ARRAY_OBJECT_EXT:
        return GL_VERTEX_ARRAY;
    default:
        return type;
    }
}

} // namespace

namespace overrides {

void GL_APIENTRY objectLabel(GLenum identifier, GLuint name, GLsizei length, const GLchar *label) {
    hostGl().objectLabel(identifier, hostName(identifier, name), length, label);
}

void GL_APIENTRY getObjectLabel(GLenum identifier, GLuint name, GLsizei bufSize, GLsizei *length, GLchar *label) {
    hostGl().getObjectLabel(identifier, hostName(identifier, name), bufSize, length, label);
}

void GL_APIENTRY labelObject(GLenum type, GLuint object, GLsizei length, const GLchar *label) {
    EsContext *const context = EsContext::current();
    if (context && length < 0) return context->raise(GL_INVALID_VALUE);
    // In EXT_debug_label, length 0 means a null-terminated text.
    objectLabel(plainIdentifier(type), object, length == 0 ? -1 : length, label);
}

void GL_APIENTRY getObjectLabelExt(GLenum type, GLuint object, GLsizei bufSize, GLsizei *length, GLchar *label) {
    getObjectLabel(plainIdentifier(type), object, bufSize, length, label);
}

} // namespace overrides
