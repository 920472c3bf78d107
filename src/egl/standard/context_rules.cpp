#include "egl/standard/context_rules.h"

#include "egl/refusal.h"
#include "egl/surface.h"
#include "foundation/attribute_list.h"

namespace egl::standard {

namespace {

using refusals::because;
using refusals::Facts;
using refusals::Rule;

constexpr EGLint debugFlag = EGL_CONTEXT_OPENGL_DEBUG_BIT_KHR;
constexpr EGLint robustFlag = EGL_CONTEXT_OPENGL_ROBUST_ACCESS_BIT_KHR;

bool isBoolean(EGLint value) {
    return value == EGL_TRUE || value == EGL_FALSE;
}

EGLint renderBuffer(const Context &context) {
    const auto &draw = context.surfaces.draw;
    if (!context.boundToThread || !draw) return EGL_NONE;
    if (!draw->hostSurface || draw->hostSurface->isPixmap()) return EGL_SINGLE_BUFFER;
    return draw->hostSurface->isPBuffer() ? EGL_BACK_BUFFER : draw->attribute(EGL_RENDER_BUFFER);
}

} // namespace

EGLint readPair(EGLint attribute, EGLint value, ContextAttribs &attribs) {
    const Facts pair{.attribute = attribute, .value = value};
    switch (attribute) {
    case EGL_CONTEXT_MAJOR_VERSION:
        attribs.requestedMajor = value;
        return EGL_SUCCESS;
    case EGL_CONTEXT_MINOR_VERSION:
        attribs.esMinor = value;
        return EGL_SUCCESS;
    case EGL_CONTEXT_FLAGS_KHR:
        // The other flags are for desktop OpenGL only.
        if (value & ~debugFlag) return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.contextFlags = value;
        return EGL_SUCCESS;
    case EGL_CONTEXT_OPENGL_DEBUG:
        if (!isBoolean(value)) return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.contextFlags = value ? attribs.contextFlags | debugFlag : attribs.contextFlags & ~debugFlag;
        return EGL_SUCCESS;
    case EGL_CONTEXT_OPENGL_NO_ERROR_KHR:
        if (!isBoolean(value)) return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.noError = static_cast<uint8_t>(value);
        return EGL_SUCCESS;
    case EGL_CONTEXT_OPENGL_ROBUST_ACCESS:
    case EGL_CONTEXT_OPENGL_ROBUST_ACCESS_EXT:
        if (!isBoolean(value)) return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.contextFlags = value ? attribs.contextFlags | robustFlag : attribs.contextFlags & ~robustFlag;
        return EGL_SUCCESS;
    case EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY:
    case EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY_EXT:
        if (value != EGL_NO_RESET_NOTIFICATION && value != EGL_LOSE_CONTEXT_ON_RESET)
            return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.resetStrategy = value == EGL_LOSE_CONTEXT_ON_RESET ? value : 0;
        return EGL_SUCCESS;
    case EGL_CONTEXT_PRIORITY_LEVEL_TWG:
        attribs.priority = value;
        return EGL_SUCCESS;
    default:
        return because(Rule::unknownAttribute, EGL_BAD_ATTRIBUTE, pair);
    }
}

bool canBeRobust(const Config &config) {
    const auto *format = config.hostConfig() ? config.hostConfig()->format() : nullptr;
    return format && host::platform::operations.pixelFormatValue(format, host::platform::RobustContexts) !=
                         host::platform::robustNever;
}

host::Robustness robustnessOf(const ContextAttribs &attribs) {
    return {.isRobust = (attribs.contextFlags & robustFlag) != 0,
            .losesContextOnReset = attribs.resetStrategy == EGL_LOSE_CONTEXT_ON_RESET};
}

EGLint promiseError(const Config &config, const ContextAttribs &attribs) {
    const auto robustness = robustnessOf(attribs);
    if ((robustness.isRobust || robustness.losesContextOnReset) && !canBeRobust(config))
        return because(Rule::notRobust, EGL_BAD_MATCH);
    // A context without error checks supports neither debugging nor robustness.
    const bool promises = attribs.contextFlags & (debugFlag | robustFlag);
    return attribs.noError && promises ? because(Rule::flagsWithoutErrors, EGL_BAD_MATCH) : EGL_SUCCESS;
}

EGLint readContextAttributes(const Config &config, const DeviceProfile &profile, const EGLint *attributes,
                             ContextAttribs &attribs) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        const EGLint error = readPair(name, value, attribs);
        if (error != EGL_SUCCESS) return error;
    }
    attribs.esMajor = attribs.requestedMajor;
    const bool isAnEs1 = attribs.requestedMajor == 1 && (attribs.esMinor == 0 || attribs.esMinor == 1);
    const bool isAVersion =
        attribs.requestedMajor == 1 ? isAnEs1 : isEsVersionAllowed(profile, attribs.requestedMajor, attribs.esMinor);
    if (!isAVersion) return refusals::becauseOfVersion(attribs.requestedMajor, attribs.esMinor, EGL_BAD_MATCH);
    if (const EGLint error = promiseError(config, attribs); error != EGL_SUCCESS) return error;
    if (config.supportsClientVersion(attribs.requestedMajor)) return EGL_SUCCESS;
    return because(
        Rule::configWithoutVersion, EGL_BAD_CONFIG,
        {.major = attribs.requestedMajor, .minor = attribs.esMinor, .config = config.attributeOr0(EGL_CONFIG_ID)});
}

EGLint queryContext(const Context &context, EGLint attribute, EGLint *value) {
    switch (attribute) {
    case EGL_CONFIG_ID:
        *value = context.config->attributeOr0(EGL_CONFIG_ID);
        return EGL_SUCCESS;
    case EGL_CONTEXT_CLIENT_TYPE:
        *value = static_cast<EGLint>(context.api);
        return EGL_SUCCESS;
    case EGL_CONTEXT_CLIENT_VERSION:
        *value = context.attribs.requestedMajor;
        return EGL_SUCCESS;
    case EGL_RENDER_BUFFER:
        *value = renderBuffer(context);
        return EGL_SUCCESS;
    case EGL_CONTEXT_PRIORITY_LEVEL_TWG:
        *value = context.attribs.priority;
        return EGL_SUCCESS;
    default:
        return EGL_BAD_ATTRIBUTE;
    }
}

} // namespace egl::standard
