// Mipmaps that the host generates.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/drawn_formats.h"
#include "textures/texture_replacement.h"
#include "textures/texture_targets.h"

namespace {

GLint baseLevel(GLenum target) {
    GLint level = 0;
    hostGl().getTexParameteriv(target, GL_TEXTURE_BASE_LEVEL, &level);
    return level;
}

bool isInteger(GLint type) {
    return type == GL_INT || type == GL_UNSIGNED_INT;
}

// ES generates mipmaps for unsized formats and for those that are both filterable and color-renderable, but not for
// compressed ones.
bool isRefused(EsContext &context, GLenum target) {
    if (!bindingOf(target)) return false;
    const GLint level = baseLevel(target);
    const GLenum image = target == GL_TEXTURE_CUBE_MAP ? GLenum(GL_TEXTURE_CUBE_MAP_POSITIVE_X) : target;
    const auto ask = [&](GLenum pname) {
        GLint value = 0;
        hostGl().getTexLevelParameteriv(image, level, pname, &value);
        return value;
    };
    if (ask(GL_TEXTURE_COMPRESSED) || isInteger(ask(GL_TEXTURE_RED_TYPE)) || ask(GL_TEXTURE_DEPTH_SIZE)) return true;
    if (context.major < 3) return false;
    const GLenum known = formatSwizzle(context, target).internal;
    const GLenum internal = known ? known : static_cast<GLenum>(ask(GL_TEXTURE_INTERNAL_FORMAT));
    const bool isUnsized = internal == GL_ALPHA || internal == GL_LUMINANCE || internal == GL_LUMINANCE_ALPHA;
    return !isUnsized && !isDrawnFormat(internal);
}

} // namespace

namespace overrides {

void GL_APIENTRY generateMipmap(GLenum target) {
    EsContext *const context = EsContext::current();
    if (context && isRefused(*context, hostTarget(target))) return context->raise(GL_INVALID_OPERATION);
    if (context) leaveImage(*context, hostTarget(target), allLevels);
    hostGl().generateMipmap(hostTarget(target));
}

// Core contexts lack this hint, which has no effect.
void GL_APIENTRY hint(GLenum target, GLenum mode) {
    EsContext *const context = EsContext::current();
    if (!context || target != GL_GENERATE_MIPMAP_HINT) return hostGl().hint(target, mode);
    if (mode != GL_FASTEST && mode != GL_NICEST && mode != GL_DONT_CARE) return context->raise(GL_INVALID_ENUM);
    context->textures.mipmapHint = mode;
}

} // namespace overrides
