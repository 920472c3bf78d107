#include "textures/texture_replacement.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/texture_contents.h"
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

void rebindUnits(GLenum target, GLuint old, GLuint fresh) {
    const HostGl &gl = hostGl();
    GLint active = GL_TEXTURE0;
    GLint count = 0;
    gl.getIntegerv(GL_ACTIVE_TEXTURE, &active);
    gl.getIntegerv(GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS, &count);
    for (GLint unit = 0; unit < count; ++unit) {
        gl.activeTexture(GL_TEXTURE0 + static_cast<GLenum>(unit));
        GLint bound = 0;
        gl.getIntegerv(bindingOf(target), &bound);
        if (static_cast<GLuint>(bound) == old) gl.bindTexture(target, fresh);
    }
    gl.activeTexture(static_cast<GLenum>(active));
}

GLuint boundTo(GLenum target) {
    GLint bound = 0;
    hostGl().getIntegerv(bindingOf(target), &bound);
    return static_cast<GLuint>(bound);
}

} // namespace

void replaceBoundTexture(EsContext &context, GLenum target, GLuint fresh) {
    SharedTextures &textures = context.shared->textures;
    const GLuint old = boundTo(target);
    const GLuint name = textures.names.nameOf(old);
    bindWithParameters(context, target, fresh);
    textures.names.replace(name, fresh);
    rebindUnits(target, old, fresh);
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
    const auto sibling = textures.images.siblings.find(boundTo(whole));
    const auto shape = sibling && sibling->isMutable ? boundTextureShape(whole) : std::nullopt;
    if (!shape) return;
    const GLint face = whole == GL_TEXTURE_CUBE_MAP ? static_cast<GLint>(target - GL_TEXTURE_CUBE_MAP_POSITIVE_X) : 0;
    const bool isAllReplaced = shape->levels == 1 && shape->faces() == 1 && level == 0;
    if (isAllReplaced) return replaceBoundTexture(context, whole, textures.names.generateHidden(hostGl().genTextures));
    try {
        const TextureContents contents(*shape);
        replaceBoundTexture(context, whole, textures.names.generateHidden(hostGl().genTextures));
        contents.defineAllBut(face, level);
    } catch (const std::bad_alloc &) {
        context.raise(GL_OUT_OF_MEMORY);
    }
}
