#include "framebuffers/renderbuffers.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/drawn_formats.h"
#include "framebuffers/renderbuffer_images.h"
#include "names/named_objects.h"
#include "textures/texture_formats.h"

namespace {

NameTable *renderbufferNames() {
    EsContext *const context = EsContext::current();
    return context ? &context->shared->renderbuffers : nullptr;
}

GLuint boundRenderbuffer() {
    GLint bound = 0;
    hostGl().getIntegerv(GL_RENDERBUFFER_BINDING, &bound);
    return static_cast<GLuint>(bound);
}

void leaveStandIn(EsContext &context) {
    if (!context.shared->renderbufferImages.textures.isEmpty()) endStandIn(context, boundRenderbuffer());
}

// store: called with the host's format.
template <typename Store>
void storeAs(GLenum format, GLsizei width, GLsizei height, GLsizei samples, Store store) {
    EsContext *const context = EsContext::current();
    if (!context) return store(format);
    if (!isRenderbufferFormat(format, context->major)) return context->raise(GL_INVALID_ENUM);
    const GLint most = context->announced.most(GL_MAX_RENDERBUFFER_SIZE);
    if (width > most || height > most) return context->raise(GL_INVALID_VALUE);
    if (samples > context->announced.most(GL_MAX_SAMPLES)) return context->raise(GL_INVALID_OPERATION);
    leaveStandIn(*context);
    store(hostTextureFormat(format).internal);
}

} // namespace

GLuint hostRenderbuffer(GLuint name) {
    NameTable *const names = renderbufferNames();
    const HostGl &gl = hostGl();
    return names ? names->findOrMake(name, gl.genRenderbuffers, gl.isRenderbuffer) : name;
}

namespace overrides {

void GL_APIENTRY genRenderbuffers(GLsizei n, GLuint *renderbuffers) {
    generateNames(renderbufferNames(), n, renderbuffers, hostGl().genRenderbuffers);
}

void GL_APIENTRY deleteRenderbuffers(GLsizei n, const GLuint *renderbuffers) {
    deleteNames(renderbufferNames(), n, renderbuffers, hostGl().deleteRenderbuffers,
                [](GLuint host) { endStandIn(*EsContext::current(), host); });
}

GLboolean GL_APIENTRY isRenderbuffer(GLuint renderbuffer) {
    const NameTable *const names = renderbufferNames();
    return hostGl().isRenderbuffer(names ? names->find(renderbuffer) : renderbuffer);
}

void GL_APIENTRY bindRenderbuffer(GLenum target, GLuint renderbuffer) {
    hostGl().bindRenderbuffer(target, hostRenderbuffer(renderbuffer));
}

void GL_APIENTRY renderbufferStorage(GLenum target, GLenum internalformat, GLsizei width, GLsizei height) {
    storeAs(internalformat, width, height, 0,
            [&](GLenum format) { hostGl().renderbufferStorage(target, format, width, height); });
}

void GL_APIENTRY renderbufferStorageMultisample(GLenum target, GLsizei samples, GLenum internalformat, GLsizei width,
                                                GLsizei height) {
    storeAs(internalformat, width, height, samples,
            [&](GLenum format) { hostGl().renderbufferStorageMultisample(target, samples, format, width, height); });
}

void GL_APIENTRY getRenderbufferParameteriv(GLenum target, GLenum pname, GLint *params) {
    const EsContext *const context = EsContext::current();
    const bool mayBeImage = context && params && !context->shared->renderbufferImages.textures.isEmpty();
    if (mayBeImage && target == GL_RENDERBUFFER && askStandIn(*context, boundRenderbuffer(), pname, params)) return;
    hostGl().getRenderbufferParameteriv(target, pname, params);
    // The initial value, without a storage.
    if (context && pname == GL_RENDERBUFFER_INTERNAL_FORMAT && params && *params == GL_RGBA) {
        *params = GL_RGBA4;
    }
}

} // namespace overrides
