#include "egl/standard/surface_rules.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <span>

#include "egl/context.h"
#include "egl/refusal.h"
#include "egl/thread_record.h"
#include "foundation/attribute_list.h"

namespace egl::standard {

namespace {

using refusals::because;
using refusals::Rule;

// The allowed values of an attribute; an empty list allows any.
struct AttributeRule {
    EGLint attribute;
    std::initializer_list<EGLint> values;
    EGLint error = EGL_BAD_ATTRIBUTE; // the error of a value that is not allowed
};

const AttributeRule windowRules[] = {
    {EGL_RENDER_BUFFER, {EGL_BACK_BUFFER, EGL_SINGLE_BUFFER}},
    {EGL_GL_COLORSPACE, {EGL_GL_COLORSPACE_LINEAR, EGL_GL_COLORSPACE_SRGB}, EGL_BAD_MATCH},
    {EGL_VG_COLORSPACE, {EGL_VG_COLORSPACE_sRGB, EGL_VG_COLORSPACE_LINEAR}, EGL_BAD_MATCH},
    {EGL_VG_ALPHA_FORMAT, {EGL_VG_ALPHA_FORMAT_NONPRE, EGL_VG_ALPHA_FORMAT_PRE}, EGL_BAD_MATCH},
};

const AttributeRule pbufferRules[] = {
    {EGL_WIDTH, {}},
    {EGL_HEIGHT, {}},
    {EGL_LARGEST_PBUFFER, {EGL_TRUE, EGL_FALSE}},
    {EGL_TEXTURE_FORMAT, {EGL_NO_TEXTURE, EGL_TEXTURE_RGB, EGL_TEXTURE_RGBA}},
    {EGL_TEXTURE_TARGET, {EGL_NO_TEXTURE, EGL_TEXTURE_2D}},
    {EGL_MIPMAP_TEXTURE, {EGL_TRUE, EGL_FALSE}},
    {EGL_GL_COLORSPACE, {EGL_GL_COLORSPACE_LINEAR, EGL_GL_COLORSPACE_SRGB}, EGL_BAD_MATCH},
    {EGL_VG_COLORSPACE, {EGL_VG_COLORSPACE_sRGB, EGL_VG_COLORSPACE_LINEAR}, EGL_BAD_MATCH},
    {EGL_VG_ALPHA_FORMAT, {EGL_VG_ALPHA_FORMAT_NONPRE, EGL_VG_ALPHA_FORMAT_PRE}, EGL_BAD_MATCH},
};

const AttributeRule pixmapRules[] = {
    {EGL_GL_COLORSPACE, {EGL_GL_COLORSPACE_LINEAR, EGL_GL_COLORSPACE_SRGB}, EGL_BAD_MATCH},
    {EGL_VG_COLORSPACE, {EGL_VG_COLORSPACE_sRGB, EGL_VG_COLORSPACE_LINEAR}, EGL_BAD_MATCH},
    {EGL_VG_ALPHA_FORMAT, {EGL_VG_ALPHA_FORMAT_NONPRE, EGL_VG_ALPHA_FORMAT_PRE}, EGL_BAD_MATCH},
};

EGLint listError(std::span<const AttributeRule> rules, const EGLint *attributes) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        const auto rule = std::ranges::find(rules, name, &AttributeRule::attribute);
        if (rule == rules.end()) return because(Rule::unknownAttribute, EGL_BAD_ATTRIBUTE, {.attribute = name});
        const auto &values = rule->values;
        const bool isTaken = values.size() == 0 || std::ranges::find(values, value) != values.end();
        if (!isTaken) return because(Rule::wrongValue, rule->error, {.attribute = name, .value = value});
    }
    return EGL_SUCCESS;
}

bool hasSurfaceType(const Config &config, EGLint bit) {
    return config.attributeOr0(EGL_SURFACE_TYPE) & bit;
}

refusals::Facts about(const Config &config) {
    return {.config = config.attributeOr0(EGL_CONFIG_ID)};
}

bool isPbuffer(const Surface &surface) {
    return surface.hostSurface && surface.hostSurface->isPBuffer();
}

bool isPixmap(const Surface &surface) {
    return surface.hostSurface && surface.hostSurface->isPixmap();
}

} // namespace

EGLint windowSurfaceError(const Config &config, const EGLint *attributes) {
    if (const EGLint error = listError(windowRules, attributes); error != EGL_SUCCESS) return error;
    if (hasSurfaceType(config, EGL_WINDOW_BIT)) return EGL_SUCCESS;
    return because(Rule::configWithoutWindows, EGL_BAD_MATCH, about(config));
}

EGLint pbufferSurfaceError(const Config &config, const EGLint *attributes) {
    if (const EGLint error = listError(pbufferRules, attributes); error != EGL_SUCCESS) return error;
    if (!hasSurfaceType(config, EGL_PBUFFER_BIT))
        return because(Rule::configWithoutPbuffers, EGL_BAD_MATCH, about(config));
    const AttributeList list(attributes);
    if (list.valueOr(EGL_WIDTH, 0) < 0 || list.valueOr(EGL_HEIGHT, 0) < 0)
        return because(Rule::negativeSize, EGL_BAD_PARAMETER);
    const EGLint format = list.valueOr(EGL_TEXTURE_FORMAT, EGL_NO_TEXTURE);
    const EGLint target = list.valueOr(EGL_TEXTURE_TARGET, EGL_NO_TEXTURE);
    if ((format == EGL_NO_TEXTURE) != (target == EGL_NO_TEXTURE)) return because(Rule::textureHalves, EGL_BAD_MATCH);
    const bool canBind = (format != EGL_TEXTURE_RGB || config.attributeOr0(EGL_BIND_TO_TEXTURE_RGB)) &&
                         (format != EGL_TEXTURE_RGBA || config.attributeOr0(EGL_BIND_TO_TEXTURE_RGBA));
    return canBind ? EGL_SUCCESS : because(Rule::configWithoutTextures, EGL_BAD_ATTRIBUTE, about(config));
}

EGLint pixmapSurfaceError(const Config &config, const EGLint *attributes) {
    if (const EGLint error = listError(pixmapRules, attributes); error != EGL_SUCCESS) return error;
    if (hasSurfaceType(config, EGL_PIXMAP_BIT)) return EGL_SUCCESS;
    return because(Rule::configWithoutPixmaps, EGL_BAD_MATCH, about(config));
}

EGLint pixmapError(const Display &display, uint64_t pixmap, const host::platform::PixelFormat *format) {
    switch (host::pixmapFit(display.nativeDisplay, pixmap, format)) {
    case host::PixmapFit::none:
        return EGL_BAD_NATIVE_PIXMAP;
    case host::PixmapFit::otherDepth:
        return EGL_BAD_MATCH;
    case host::PixmapFit::fits:
        break;
    }
    return EGL_SUCCESS;
}

EGLint querySurface(Surface &surface, EGLint attribute, EGLint *value) {
    switch (attribute) {
    case EGL_LARGEST_PBUFFER:
    case EGL_MIPMAP_TEXTURE:
    case EGL_TEXTURE_FORMAT:
    case EGL_TEXTURE_TARGET:
        // These attributes apply to pbuffers only.
        if (!isPbuffer(surface)) return EGL_SUCCESS;
        *value = surface.storedOr(attribute, attribute == EGL_TEXTURE_TARGET ? EGL_NO_TEXTURE : EGL_FALSE);
        return EGL_SUCCESS;
    case EGL_BUFFER_AGE_EXT: {
        const Context *current = threadRecord.current;
        if (!current || current->surfaces.draw.get() != &surface) return EGL_BAD_SURFACE;
        *value = surface.canPreserve ? surface.age() : host::hostBufferAge(current->claimedHostContext());
        return EGL_SUCCESS;
    }
    case EGL_MIPMAP_LEVEL:
        if (isPbuffer(surface)) *value = surface.mipmapLevel;
        return EGL_SUCCESS;
    case EGL_MULTISAMPLE_RESOLVE:
        *value = surface.multisampleResolve;
        return EGL_SUCCESS;
    case EGL_SWAP_BEHAVIOR:
        *value = surface.swapBehavior;
        return EGL_SUCCESS;
    case EGL_HORIZONTAL_RESOLUTION:
    case EGL_VERTICAL_RESOLUTION:
    case EGL_PIXEL_ASPECT_RATIO:
        *value = EGL_UNKNOWN;
        return EGL_SUCCESS;
    case EGL_VG_COLORSPACE:
        *value = surface.storedOr(attribute, EGL_VG_COLORSPACE_sRGB);
        return EGL_SUCCESS;
    case EGL_VG_ALPHA_FORMAT:
        *value = surface.storedOr(attribute, EGL_VG_ALPHA_FORMAT_NONPRE);
        return EGL_SUCCESS;
    case EGL_RENDER_BUFFER:
        *value = isPixmap(surface) ? EGL_SINGLE_BUFFER : surface.storedOr(attribute, EGL_BACK_BUFFER);
        return EGL_SUCCESS;
    default:
        return surface.query(attribute, value);
    }
}

EGLint setSurfaceAttribute(Surface &surface, EGLint attribute, EGLint value) {
    switch (attribute) {
    case EGL_MIPMAP_LEVEL:
        surface.mipmapLevel = value;
        return EGL_SUCCESS;
    case EGL_MULTISAMPLE_RESOLVE:
        if (value == EGL_MULTISAMPLE_RESOLVE_BOX) return EGL_BAD_MATCH; // no config has the bit
        if (value != EGL_MULTISAMPLE_RESOLVE_DEFAULT) return EGL_BAD_PARAMETER;
        return EGL_SUCCESS;
    case EGL_SWAP_BEHAVIOR:
        if (value == EGL_BUFFER_PRESERVED && !surface.canPreserve) return EGL_BAD_MATCH;
        if (value != EGL_BUFFER_DESTROYED && value != EGL_BUFFER_PRESERVED) return EGL_BAD_PARAMETER;
        surface.swapBehavior = value;
        return EGL_SUCCESS;
    default:
        return EGL_BAD_ATTRIBUTE;
    }
}

} // namespace egl::standard
