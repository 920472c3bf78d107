#include "egl/context_attribs.h"

#include <cstddef>

#include "egl/refusal.h"
#include "egl/thread_record.h"
#include "foundation/attribute_list.h"

namespace egl {

static_assert(sizeof(ContextAttribs) == 48);
static_assert(offsetof(ContextAttribs, contextHandle) == 0 && offsetof(ContextAttribs, requestedMajor) == 8 &&
              offsetof(ContextAttribs, esMajor) == 12 && offsetof(ContextAttribs, esMinor) == 16 &&
              offsetof(ContextAttribs, contextFlags) == 20 && offsetof(ContextAttribs, profileMask) == 24 &&
              offsetof(ContextAttribs, resetStrategy) == 28 && offsetof(ContextAttribs, priority) == 32 &&
              offsetof(ContextAttribs, legacyClient) == 36 && offsetof(ContextAttribs, surfaceless) == 37 &&
              offsetof(ContextAttribs, strictContextMode) == 38 && offsetof(ContextAttribs, noError) == 39 &&
              offsetof(ContextAttribs, srgbFramebuffer) == 40);

namespace {

using refusals::because;
using refusals::Rule;

constexpr EGLint noErrorFlag = 8;

bool applyAttribute(const Config &config, EGLint attribute, EGLint value, ContextAttribs &attribs) {
    switch (attribute) {
    case EGL_CONTEXT_CLIENT_VERSION:
        if (!config.supportsClientVersion(value)) {
            setError(because(Rule::configWithoutVersion, EGL_BAD_CONFIG,
                             {.major = value, .config = config.attributeOr0(EGL_CONFIG_ID)}));
            return false;
        }
        attribs.requestedMajor = value;
        if (value == 1) attribs.legacyClient = 1;
        return true;
    case EGL_CONTEXT_MINOR_VERSION_KHR:
        attribs.esMinor = value;
        return true;
    case EGL_CONTEXT_FLAGS_KHR:
        attribs.contextFlags = value;
        if (value & noErrorFlag) attribs.noError = 1;
        return true;
    case EGL_CONTEXT_OPENGL_PROFILE_MASK_KHR:
        attribs.profileMask = value;
        return true;
    case EGL_CONTEXT_PRIORITY_LEVEL_TWG:
        attribs.priority = value;
        return true;
    case EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY:
        attribs.resetStrategy = value;
        return true;
    case EGL_CONTEXT_OPENGL_NO_ERROR_KHR:
        // Any value sets it, even EGL_FALSE.
        attribs.noError = 1;
        return true;
    case EGL_CONTEXT_OPENGL_ROBUST_ACCESS_EXT:
    case EGL_CONTEXT_OPENGL_RESET_NOTIFICATION_STRATEGY_EXT:
        return true;
    default:
        setError(because(Rule::unknownAttribute, EGL_BAD_ATTRIBUTE, {.attribute = attribute}));
        return false;
    }
}

} // namespace

ContextAttribs defaultContextAttribs() {
    ContextAttribs attribs{};
    attribs.requestedMajor = 1;
    attribs.esMajor = 1;
    attribs.priority = EGL_CONTEXT_PRIORITY_MEDIUM_TWG;
    return attribs;
}

bool parseContextAttribs(const Config &config, const EGLint *attributes, ContextAttribs &attribs) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        if (!applyAttribute(config, name, value, attribs)) return false;
    }
    attribs.esMajor = attribs.requestedMajor;
    return true;
}

} // namespace egl
