#include "textures/texture_replacement.h"

#include "common/per_back_end/bound_textures.h"
#include "common/per_back_end/host_gl.h"
#include "context/es_context.h"
#include "framebuffers/attachment_swaps.h"
#include "textures/texture_targets.h"

#include <array>
#include <new>

namespace {

// Parameters that a host lacks generate errors in both calls, which are cleared.
constexpr GLenum integerParameters[] = {
    GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER,         GL_TEXTURE_WRAP_S,         GL_TEXTURE_WRAP_T,
    GL_TEXTURE_WRAP_R,     GL_TEXTURE_COMPARE_MODE,       GL_TEXTURE_COMPARE_FUNC,   GL_TEXTURE_BASE_LEVEL,
    GL_TEXTURE_MAX_LEVEL,  GL_TEXTURE_SWIZZLE_R,          GL_TEXTURE_SWIZZLE_G,      GL_TEXTURE_SWIZZLE_B,
    GL_TEXTURE_SWIZZLE_A,  GL_DEPTH_STENCIL_TEXTURE_MODE, GL_TEXTURE_SRGB_DECODE_EXT};
constexpr GLenum floatParameters[] = {GL_TEXTURE_MIN_LOD, GL_TEXTURE_MAX_LOD, GL_TEXTURE_MAX_ANISOTROPY_EXT};

// Keeps the host's pending error and clears those of the calls in between.
class Unnoticed {
public:
    explicit Unnoticed(EsContext &context) {
        if (const GLenum error = hostGl().getError(); error != GL_NO_ERROR) context.raise(error);
    }
    ~Unnoticed() { sweepHostErrors(); }
    Unnoticed(const Unnoticed &) = delete;
    Unnoticed &operator=(const Unnoticed &) = delete;
};

void bindWithParameters(EsContext &context, GLenum target, GLuint texture) {
    const HostGl &gl = hostGl();
    const Unnoticed unnoticed(context);
    std::array<GLint, std::size(integerParameters)> integers = {};
    std::array<GLfloat, std::size(floatParameters)> floats = {};
    std::array<GLfloat, 4> border = {};
    for (size_t index = 0; index < integers.size(); ++index)
        gl.getTexParameteriv(target, integerParameters[index], &integers[index]);
    for (size_t index = 0; index < floats.size(); ++index)
        gl.getTexParameterfv(target, floatParameters[index], &floats[index]);
    gl.getTexParameterfv(target, GL_TEXTURE_BORDER_COLOR, border.data());
    gl.bindTexture(target, texture);
    for (size_t index = 0; index < integers.size(); ++index)
        gl.texParameteri(target, integerParameters[index], integers[index]);
    for (size_t index = 0; index < floats.size(); ++index)
        gl.texParameterf(target, floatParameters[index], floats[index]);
    gl.texParameterfv(target, GL_TEXTURE_BORDER_COLOR, border.data());
}

} // namespace

void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh) {
    SharedTextures &textures = context.shared->textures;
    const GLuint old = textureBoundTo(bindingOf(target));
    const GLuint name = textures.names.nameOf(old);
    bindWithParameters(context, target, fresh);
    textures.names.replace(name, fresh);
    rebindUnits(target, bindingOf(target), GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS, old, fresh);
    swapAttached(context, {GL_TEXTURE, old}, {GL_TEXTURE, fresh});
    if (const auto swizzle = textures.swizzles.find(old)) {
        textures.swizzles.set(fresh, *swizzle);
        textures.swizzles.remove(old);
    }
    textures.images.siblings.remove(old);
    context.textures.lastNames.erase(old);
    context.textures.lastNames[fresh] = name;
    hostGl().deleteTextures(1, &old);
}

void leaveImage(EsContext &context, GLenum target, GLint level) {
    SharedTextures &textures = context.shared->textures;
    if (textures.images.siblings.isEmpty()) return;
    const GLenum whole = wholeTarget(target);
    if (!bindingOf(whole)) return;
    const auto sibling = textures.images.siblings.find(textureBoundTo(bindingOf(whole)));
    const auto shape = sibling && sibling->isMutable ? boundTextureShape(whole) : std::nullopt;
    if (!shape) return;
    try {
        replaceAllBut(*shape, hostTarget(target), level, [&] {
            replaceBoundTexture(context, whole, textures.names.generateHidden(hostGl().genTextures));
        });
    } catch (const std::bad_alloc &) {
        context.raise(GL_OUT_OF_MEMORY);
    }
}
