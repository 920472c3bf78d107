#include "textures/texture_crops.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "fixed_function/fixed_point.h"
#include "fixed_function/parameters.h"

#include <algorithm>
#include <cmath>

namespace {

// The bound texture, by the application's name.
GLuint boundTexture(const EsContext &context) {
    return context.shared->standIns.nameOf(boundHostTexture(GL_TEXTURE_2D));
}

// False if the call is passed to the host.
template <typename Number>
bool setCrop(GLenum target, GLenum pname, const Number *params) {
    EsContext *const context = EsContext::current();
    if (!context || pname != GL_TEXTURE_CROP_RECT_OES || target != GL_TEXTURE_2D || !params) return false;
    TextureCrop crop;
    std::transform(params, params + 4, crop.begin(), [](Number number) { return toInteger(number); });
    const GLuint texture = boundTexture(*context);
    if (texture == 0) {
        context->cropOfTextureZero = crop;
    } else {
        reportingMemory(*context, [&] { context->shared->textureCrops.set(texture, crop); });
    }
    return true;
}

template <typename Number>
bool getCrop(GLenum target, GLenum pname, Number *params) {
    EsContext *const context = EsContext::current();
    if (!context || pname != GL_TEXTURE_CROP_RECT_OES || target != GL_TEXTURE_2D || !params) return false;
    std::ranges::transform(boundTextureCrop(*context), params,
                           [](GLint number) { return static_cast<Number>(number); });
    return true;
}

} // namespace

void TextureCrops::set(GLuint texture, const TextureCrop &crop) {
    const std::lock_guard lock(m_mutex);
    m_crops[texture] = crop;
}

TextureCrop TextureCrops::get(GLuint texture) {
    const std::lock_guard lock(m_mutex);
    const auto found = m_crops.find(texture);
    return found == m_crops.end() ? TextureCrop{} : found->second;
}

void TextureCrops::forget(GLuint texture) {
    const std::lock_guard lock(m_mutex);
    m_crops.erase(texture);
}

TextureCrop boundTextureCrop(EsContext &context) {
    const GLuint texture = boundTexture(context);
    return texture == 0 ? context.cropOfTextureZero : context.shared->textureCrops.get(texture);
}

namespace overrides {

void GL_APIENTRY texParameterfv(GLenum target, GLenum pname, const GLfloat *params) {
    if (!setCrop(target, pname, params) && checkVector(Family::TexParameter, pname))
        hostGl().texParameterfv(target, pname, params);
}

void GL_APIENTRY texParameteriv(GLenum target, GLenum pname, const GLint *params) {
    if (!setCrop(target, pname, params) && checkVector(Family::TexParameter, pname))
        hostGl().texParameteriv(target, pname, params);
}

void GL_APIENTRY getTexParameterfv(GLenum target, GLenum pname, GLfloat *params) {
    if (!getCrop(target, pname, params)) hostGl().getTexParameterfv(target, pname, params);
}

void GL_APIENTRY getTexParameteriv(GLenum target, GLenum pname, GLint *params) {
    if (!getCrop(target, pname, params)) hostGl().getTexParameteriv(target, pname, params);
}

void GL_APIENTRY deleteTextures(GLsizei n, const GLuint *textures) {
    EsContext *const context = EsContext::current();
    for (GLsizei index = 0; context && textures && index < n; ++index) {
        ShareGroup &shared = *context->shared;
        shared.textureCrops.forget(textures[index]);
        const GLuint standIn = shared.standIns.remove(textures[index]);
        shared.images.siblings.remove(standIn ? standIn : textures[index]);
        if (standIn) hostGl().deleteTextures(1, &standIn);
    }
    hostGl().deleteTextures(n, textures);
}

} // namespace overrides
