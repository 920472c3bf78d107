// Pixel reads: ES allows one format for each kind of image, and one that the host chooses.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "host_types.h"

namespace {

GLint askHost(GLenum pname) {
    GLint value = 0;
    hostGl().getIntegerv(pname, &value);
    return value;
}

// The component type of the read image.
GLenum componentType(const EsContext &context) {
    if (context.framebuffers.read() == 0) return GL_UNSIGNED_NORMALIZED;
    GLint type = GL_UNSIGNED_NORMALIZED;
    const auto buffer = static_cast<GLenum>(askHost(GL_READ_BUFFER));
    if (buffer == GL_NONE) return GL_UNSIGNED_NORMALIZED;
    hostGl().getFramebufferAttachmentParameteriv(GL_READ_FRAMEBUFFER, buffer, GL_FRAMEBUFFER_ATTACHMENT_COMPONENT_TYPE,
                                                 &type);
    return static_cast<GLenum>(type);
}

bool isFormOf(GLenum component, GLenum format, GLenum type) {
    switch (component) {
    case GL_UNSIGNED_NORMALIZED:
        return format == GL_RGBA && type == GL_UNSIGNED_BYTE;
    case GL_SIGNED_NORMALIZED:
        return format == GL_RGBA && (type == GL_BYTE || type == GL_SHORT || type == GL_UNSIGNED_BYTE);
    case GL_FLOAT:
        return format == GL_RGBA && type == GL_FLOAT;
    case GL_INT:
        return format == GL_RGBA_INTEGER && type == GL_INT;
    case GL_UNSIGNED_INT:
        return format == GL_RGBA_INTEGER && type == GL_UNSIGNED_INT;
    default:
        return true;
    }
}

// BGRA requires EXT_read_format_bgra, 16-bit types EXT_texture_norm16. Depth, stencil and invalid enumerants are
// checked by the host.
bool isRead(const EsContext &context, GLenum format, GLenum type) {
    const bool isColor = format == GL_RGBA || format == GL_RGBA_INTEGER;
    const bool isPlain = type == GL_UNSIGNED_BYTE || type == GL_BYTE || type == GL_SHORT || type == GL_INT ||
                         type == GL_UNSIGNED_INT || type == GL_FLOAT;
    if (!isColor || !isPlain || isFormOf(componentType(context), format, type)) return true;
    return static_cast<GLenum>(askHost(GL_IMPLEMENTATION_COLOR_READ_FORMAT)) == format &&
           static_cast<GLenum>(askHost(GL_IMPLEMENTATION_COLOR_READ_TYPE)) == type;
}

bool isComplete() {
    return hostGl().checkFramebufferStatus(GL_READ_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

// The error that the host does not raise, or GL_NO_ERROR.
GLenum readError(const EsContext &context, GLenum format, GLenum type) {
    // An incomplete framebuffer has no read image to check.
    return !isComplete() || isRead(context, format, type) ? GL_NO_ERROR : GL_INVALID_OPERATION;
}

// A depth in the upper 24 of 32 bits, which desktop OpenGL has only together with a stencil.
GLenum hostReadType(GLenum format, GLenum type) {
    const bool isDepth = format == GL_DEPTH_COMPONENT && type == GL_UNSIGNED_INT_24_8;
    return isDepth ? GL_UNSIGNED_INT : hostType(type);
}

} // namespace

namespace overrides {

void GL_APIENTRY readPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type, void *pixels) {
    EsContext *const context = EsContext::current();
    const GLenum error = context ? readError(*context, format, type) : GL_NO_ERROR;
    if (error != GL_NO_ERROR) return context->raise(error);
    hostGl().readPixels(x, y, width, height, format, hostReadType(format, type), pixels);
}

void GL_APIENTRY readnPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type,
                             GLsizei bufSize, void *data) {
    EsContext *const context = EsContext::current();
    const GLenum error = context ? readError(*context, format, type) : GL_NO_ERROR;
    if (error != GL_NO_ERROR) return context->raise(error);
    hostGl().readnPixels(x, y, width, height, format, hostReadType(format, type), bufSize, data);
}

} // namespace overrides
