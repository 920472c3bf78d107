#include "textures/texture_swizzles.h"

#include "common/per_back_end/bound_textures.h"
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "textures/texture_targets.h"

namespace {

constexpr GLenum swizzleNames[] = {GL_TEXTURE_SWIZZLE_R, GL_TEXTURE_SWIZZLE_G, GL_TEXTURE_SWIZZLE_B,
                                   GL_TEXTURE_SWIZZLE_A};

struct Place {
    TextureSwizzles *swizzles;
    GLuint key;
};

Place placeOf(EsContext &context, GLenum target) {
    const GLuint bound = textureBoundTo(bindingOf(target));
    if (bound == 0) return {&context.textures.swizzlesOfZero, target};
    return {&context.shared->textures.swizzles, bound};
}

bool isSwizzle(GLenum pname) {
    return pname >= GL_TEXTURE_SWIZZLE_R && pname <= GL_TEXTURE_SWIZZLE_A;
}

bool hasNone(const EsContext &context) {
    return context.shared->textures.swizzles.isEmpty() && context.textures.swizzlesOfZero.isEmpty();
}

void tellHost(GLenum target, const TextureSwizzle &entry) {
    const Swizzle swizzle = composed(entry.ofApplication, entry.ofFormat);
    for (size_t channel = 0; channel < 4; ++channel)
        hostGl().texParameteri(target, swizzleNames[channel], swizzle[channel]);
}

// True when the texture's format has a swizzle; the application's is then combined with it.
bool setApplications(GLenum target, GLenum pname, GLint value) {
    EsContext *const context = isSwizzle(pname) ? EsContext::current() : nullptr;
    target = hostTarget(target);
    if (!context || hasNone(*context) || !bindingOf(target)) return false;
    const bool isChannel = (value >= GL_RED && value <= GL_ALPHA) || value == GL_ZERO || value == GL_ONE;
    const Place place = placeOf(*context, target);
    auto entry = place.swizzles->find(place.key);
    if (!entry || !isChannel) return false;
    entry->ofApplication[pname - GL_TEXTURE_SWIZZLE_R] = value;
    place.swizzles->set(place.key, *entry);
    tellHost(target, *entry);
    return true;
}

// A sibling of an EGL image has an immutable storage on the host, which is not reported to the application.
template <typename Value>
bool hideStorage(GLenum target, GLenum pname, Value *params) {
    const EsContext *const context = pname == GL_TEXTURE_IMMUTABLE_FORMAT ? EsContext::current() : nullptr;
    target = hostTarget(target);
    if (!context || !params || context->shared->textures.images.siblings.isEmpty() || !bindingOf(target)) return false;
    const auto sibling = context->shared->textures.images.siblings.find(textureBoundTo(bindingOf(target)));
    const bool isHidden = sibling && sibling->isMutable;
    if (isHidden) *params = GL_FALSE;
    return isHidden;
}

template <typename Value>
bool getApplications(GLenum target, GLenum pname, Value *params) {
    EsContext *const context = isSwizzle(pname) ? EsContext::current() : nullptr;
    target = hostTarget(target);
    if (!context || hasNone(*context) || !bindingOf(target) || !params) return false;
    const Place place = placeOf(*context, target);
    const auto entry = place.swizzles->find(place.key);
    if (entry) *params = static_cast<Value>(entry->ofApplication[pname - GL_TEXTURE_SWIZZLE_R]);
    return entry.has_value();
}

} // namespace

void setFormatSwizzle(EsContext &context, GLenum target, GLenum internal, const HostTextureFormat &format) {
    const bool isFloat = format.type == GL_FLOAT || format.type == GL_HALF_FLOAT;
    // A float image has a sized format on the host, even if it is specified with an unsized one.
    const bool isOwn = format.swizzle == plainSwizzle && (format.internal == internal || isFloat);
    if (isOwn && hasNone(context)) return;
    target = wholeTarget(target);
    if (!bindingOf(target)) return;
    const Place place = placeOf(context, target);
    auto entry = place.swizzles->find(place.key);
    if (!entry) {
        if (isOwn) return;
        entry.emplace();
        for (size_t channel = 0; channel < 4; ++channel)
            hostGl().getTexParameteriv(target, swizzleNames[channel], &entry->ofApplication[channel]);
    }
    const bool isNew = entry->ofFormat != format.swizzle;
    entry->ofFormat = format.swizzle;
    entry->internal = isOwn ? format.internal : internal;
    place.swizzles->set(place.key, *entry);
    if (isNew) tellHost(target, *entry);
}

TextureSwizzle formatSwizzle(EsContext &context, GLenum target) {
    target = wholeTarget(target);
    if (hasNone(context) || !bindingOf(target)) return {};
    const Place place = placeOf(context, target);
    return place.swizzles->find(place.key).value_or(TextureSwizzle{});
}

namespace overrides {

void GL_APIENTRY texParameteri(GLenum target, GLenum pname, GLint param) {
    if (!setApplications(target, pname, param)) hostGl().texParameteri(hostTarget(target), pname, param);
}

void GL_APIENTRY texParameterf(GLenum target, GLenum pname, GLfloat param) {
    if (isSwizzle(pname)) return texParameteri(target, pname, static_cast<GLint>(param));
    hostGl().texParameterf(hostTarget(target), pname, param);
}

void GL_APIENTRY texParameteriv(GLenum target, GLenum pname, const GLint *params) {
    if (isSwizzle(pname) && params) return texParameteri(target, pname, *params);
    hostGl().texParameteriv(hostTarget(target), pname, params);
}

void GL_APIENTRY texParameterfv(GLenum target, GLenum pname, const GLfloat *params) {
    if (isSwizzle(pname) && params) return texParameterf(target, pname, *params);
    hostGl().texParameterfv(hostTarget(target), pname, params);
}

void GL_APIENTRY texParameterIiv(GLenum target, GLenum pname, const GLint *params) {
    if (isSwizzle(pname) && params) return texParameteri(target, pname, *params);
    hostGl().texParameterIiv(hostTarget(target), pname, params);
}

void GL_APIENTRY texParameterIuiv(GLenum target, GLenum pname, const GLuint *params) {
    if (isSwizzle(pname) && params) return texParameteri(target, pname, static_cast<GLint>(*params));
    hostGl().texParameterIuiv(hostTarget(target), pname, params);
}

void GL_APIENTRY getTexParameteriv(GLenum target, GLenum pname, GLint *params) {
    if (hideStorage(target, pname, params)) return;
    if (!getApplications(target, pname, params)) hostGl().getTexParameteriv(hostTarget(target), pname, params);
}

void GL_APIENTRY getTexParameterfv(GLenum target, GLenum pname, GLfloat *params) {
    if (hideStorage(target, pname, params)) return;
    if (!getApplications(target, pname, params)) hostGl().getTexParameterfv(hostTarget(target), pname, params);
}

void GL_APIENTRY getTexParameterIiv(GLenum target, GLenum pname, GLint *params) {
    if (!getApplications(target, pname, params)) hostGl().getTexParameterIiv(hostTarget(target), pname, params);
}

void GL_APIENTRY getTexParameterIuiv(GLenum target, GLenum pname, GLuint *params) {
    if (!getApplications(target, pname, params)) hostGl().getTexParameterIuiv(hostTarget(target), pname, params);
}

} // namespace overrides
