// Clears textures without a framebuffer.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "host_types.h"
#include "textures/texture_formats.h"

namespace {

// The host generates an error for a name that the application never used.
GLuint knownTexture(GLuint texture) {
    const EsContext *const context = EsContext::current();
    return context ? context->shared->textures.names.find(texture) : texture;
}

} // namespace

namespace overrides {

void GL_APIENTRY clearTexImage(GLuint texture, GLint level, GLenum format, GLenum type, const void *data) {
    hostGl().clearTexImage(knownTexture(texture), level, hostPixelFormat(format, type), hostType(type), data);
}

void GL_APIENTRY clearTexSubImage(GLuint texture, GLint level, GLint xoffset, GLint yoffset, GLint zoffset,
                                  GLsizei width, GLsizei height, GLsizei depth, GLenum format, GLenum type,
                                  const void *data) {
    hostGl().clearTexSubImage(knownTexture(texture), level, xoffset, yoffset, zoffset, width, height, depth,
                              hostPixelFormat(format, type), hostType(type), data);
}

} // namespace overrides
