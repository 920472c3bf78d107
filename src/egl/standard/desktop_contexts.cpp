#include "egl/standard/desktop_contexts.h"

#include <iterator>

#include "egl/refusal.h"
#include "egl/standard/context_rules.h"
#include "foundation/attribute_list.h"

namespace egl::standard {

namespace {

using refusals::because;
using refusals::Rule;

constexpr EGLint forwardFlag = EGL_CONTEXT_OPENGL_FORWARD_COMPATIBLE_BIT_KHR;
constexpr EGLint hostFlags = EGL_CONTEXT_OPENGL_DEBUG_BIT_KHR | forwardFlag;
constexpr EGLint allFlags = hostFlags | EGL_CONTEXT_OPENGL_ROBUST_ACCESS_BIT_KHR;
constexpr EGLint core = EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT, compatible = EGL_CONTEXT_OPENGL_COMPATIBILITY_PROFILE_BIT;

// The last minor version of each major one, from 1 on.
constexpr EGLint lastMinors[] = {5, 1, 3, 6};

bool isVersion(EGLint major, EGLint minor) {
    return major >= 1 && major <= EGLint(std::size(lastMinors)) && minor >= 0 && minor <= lastMinors[major - 1];
}

EGLint readDesktopPair(EGLint attribute, EGLint value, ContextAttribs &attribs) {
    const refusals::Facts pair{.attribute = attribute, .value = value};
    switch (attribute) {
    case EGL_CONTEXT_FLAGS_KHR:
        if (value & ~allFlags) return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.contextFlags = value;
        return EGL_SUCCESS;
    case EGL_CONTEXT_OPENGL_FORWARD_COMPATIBLE:
        if (value != EGL_TRUE && value != EGL_FALSE) return because(Rule::wrongValue, EGL_BAD_ATTRIBUTE, pair);
        attribs.contextFlags = value ? attribs.contextFlags | forwardFlag : attribs.contextFlags & ~forwardFlag;
        return EGL_SUCCESS;
    case EGL_CONTEXT_OPENGL_PROFILE_MASK:
        attribs.profileMask = value;
        return EGL_SUCCESS;
    default:
        return readPair(attribute, value, attribs);
    }
}

} // namespace

EGLint readDesktopContextAttributes(const Config &config, const EGLint *attributes, ContextAttribs &attribs) {
    attribs.profileMask = core;
    for (const auto &[name, value] : AttributeList(attributes)) {
        const EGLint error = readDesktopPair(name, value, attribs);
        if (error != EGL_SUCCESS) return error;
    }
    attribs.esMajor = attribs.requestedMajor;
    const EGLint major = attribs.requestedMajor, minor = attribs.esMinor;
    const refusals::Facts version{.major = major, .minor = minor};
    if (!isVersion(major, minor)) return because(Rule::versionOfOpenGl, EGL_BAD_MATCH, version);
    // Older versions have no profiles, and the mask is ignored.
    const bool hasProfiles = major > 3 || (major == 3 && minor >= 2);
    const bool isOneProfile = attribs.profileMask == core || attribs.profileMask == compatible;
    if (hasProfiles && !isOneProfile) return because(Rule::profileOfOpenGl, EGL_BAD_MATCH, version);
    if (attribs.contextFlags & forwardFlag && major < 3) return because(Rule::forwardOfOpenGl, EGL_BAD_MATCH, version);
    if (const EGLint error = promiseError(config, attribs); error != EGL_SUCCESS) return error;
    if (config.attributeOr0(EGL_RENDERABLE_TYPE) & EGL_OPENGL_BIT) return EGL_SUCCESS;
    return because(Rule::configWithoutOpenGl, EGL_BAD_CONFIG, {.config = config.attributeOr0(EGL_CONFIG_ID)});
}

host::DesktopContext desktopContextOf(const ContextAttribs &attribs) {
    // A request for 3.1 may be answered by a later core profile, but not by a compatible one, which hosts prefer.
    const bool isLastWithoutProfiles = attribs.requestedMajor == 3 && attribs.esMinor == 1;
    return {.major = attribs.requestedMajor,
            .minor = isLastWithoutProfiles ? 2 : attribs.esMinor,
            .profileMask = isLastWithoutProfiles ? core : attribs.profileMask & (core | compatible),
            .flags = attribs.contextFlags & hostFlags,
            .checksNoErrors = attribs.noError != 0};
}

} // namespace egl::standard
