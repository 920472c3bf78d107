// glGetInternalformativ: ES allows the query only for renderable formats.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/drawn_formats.h"
#include "textures/texture_formats.h"

namespace {

// Desktop OpenGL accepts all texture targets and many more names.
bool isQuestion(GLenum target, GLenum pname) {
    const bool isTarget =
        target == GL_RENDERBUFFER || target == GL_TEXTURE_2D_MULTISAMPLE || target == GL_TEXTURE_2D_MULTISAMPLE_ARRAY;
    return isTarget && (pname == GL_SAMPLES || pname == GL_NUM_SAMPLE_COUNTS);
}

} // namespace

namespace overrides {

void GL_APIENTRY getInternalformativ(GLenum target, GLenum internalformat, GLenum pname, GLsizei bufSize,
                                     GLint *params) {
    EsContext *const context = EsContext::current();
    if (!context) return hostGl().getInternalformativ(target, internalformat, pname, bufSize, params);
    const bool isGood = isQuestion(target, pname) && isRenderbufferFormat(internalformat, context->major);
    if (!isGood) return context->raise(GL_INVALID_ENUM);
    hostGl().getInternalformativ(target, hostTextureFormat(internalformat).internal, pname, bufSize, params);
}

} // namespace overrides
