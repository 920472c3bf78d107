// Queries of texture levels. A format that a core context lacks is reported as itself and not as its replacement.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_targets.h"

namespace {

// The query to use on the host: that of the component that stores alpha, or none for the other components, which such a
// format lacks.
GLenum hostChannel(GLenum pname, const Swizzle &swizzle) {
    for (const GLenum red : {GL_TEXTURE_RED_SIZE, GL_TEXTURE_RED_TYPE}) {
        if (pname < red || pname > red + 3) continue;
        const bool isAlpha = pname == red + 3;
        const bool isStored = swizzle[3] >= GL_RED && swizzle[3] <= GL_ALPHA;
        return isAlpha && isStored ? red + static_cast<GLenum>(swizzle[3] - GL_RED) : GLenum(GL_NONE);
    }
    return pname;
}

template <typename Value>
void get(GLenum target, GLint level, GLenum pname, Value *params,
         void(GL_APIENTRY *host)(GLenum, GLint, GLenum, Value *)) {
    EsContext *const context = params ? EsContext::current() : nullptr;
    target = hostTarget(target);
    const TextureSwizzle known = context ? formatSwizzle(*context, target) : TextureSwizzle{};
    const bool isPlain = known.ofFormat == plainSwizzle;
    const bool isAskedOfHost = isPlain && (known.internal == GL_NONE || pname != GL_TEXTURE_INTERNAL_FORMAT);
    if (isAskedOfHost) return host(target, level, pname, params);
    const GLenum hostName = isPlain ? pname : hostChannel(pname, known.ofFormat);
    // Remains if the call generates an error; the host's float query may write even then.
    constexpr GLint none = -1;
    GLint found = none;
    hostGl().getTexLevelParameteriv(target, level, hostName == GL_NONE ? pname : hostName, &found);
    if (found == none) return;
    if (hostName == GL_NONE) found = 0;
    *params = static_cast<Value>(pname == GL_TEXTURE_INTERNAL_FORMAT ? static_cast<GLint>(known.internal) : found);
}

} // namespace

namespace overrides {

void GL_APIENTRY getTexLevelParameterfv(GLenum target, GLint level, GLenum pname, GLfloat *params) {
    get(target, level, pname, params, hostGl().getTexLevelParameterfv);
}

void GL_APIENTRY getTexLevelParameteriv(GLenum target, GLint level, GLenum pname, GLint *params) {
    get(target, level, pname, params, hostGl().getTexLevelParameteriv);
}

} // namespace overrides
