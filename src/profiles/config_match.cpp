#include "profiles/config.h"

#include <algorithm>
#include <iterator>

#include <EGL/egl.h>

#include "foundation/attribute_list.h"

namespace egl {

namespace {

enum class Test { atLeast, equalOrAny, equal, surfaceBits, allBits, untested };
enum class Weight { counts, asksForRgb, transparentOnly, alone };

struct MatchRule {
    int32_t attribute;
    Test test;
    Weight weight;
};

constexpr MatchRule matchRules[] = {
#define MATCH_RULE(attribute, test, weight) {attribute, Test::test, Weight::weight},
#include "profiles/data/match_rules.def"
#undef MATCH_RULE
};

constexpr MatchRule findRule(int32_t attribute) {
    const auto *found = std::ranges::find(matchRules, attribute, &MatchRule::attribute);
    return found != std::end(matchRules) ? *found : MatchRule{attribute, Test::untested, Weight::counts};
}

bool passes(Test test, int32_t offered, int32_t wanted) {
    constexpr int32_t surfaceBits = EGL_WINDOW_BIT | EGL_PIXMAP_BIT | EGL_PBUFFER_BIT;
    switch (test) {
    case Test::atLeast:
        return offered >= wanted;
    case Test::equalOrAny:
        return offered == wanted || wanted == EGL_DONT_CARE;
    case Test::equal:
        return offered == wanted;
    case Test::surfaceBits:
        return (offered & wanted & surfaceBits) == (wanted & surfaceBits);
    case Test::allBits:
        return (offered & wanted) == wanted;
    case Test::untested:
        break;
    }
    return true;
}

bool isValidPair(int32_t attribute, int32_t value) {
    if (attribute < EGL_BUFFER_SIZE || attribute > EGL_CONFORMANT) return false;
    switch (attribute) {
    case EGL_MATCH_NATIVE_PIXMAP:
        return false;
    case EGL_BUFFER_SIZE:
    case EGL_ALPHA_SIZE:
    case EGL_BLUE_SIZE:
    case EGL_GREEN_SIZE:
    case EGL_RED_SIZE:
    case EGL_DEPTH_SIZE:
    case EGL_STENCIL_SIZE:
        return value >= EGL_DONT_CARE;
    case EGL_CONFIG_CAVEAT:
        return value == EGL_NONE || value == EGL_SLOW_CONFIG || value == EGL_NON_CONFORMANT_CONFIG ||
               value == EGL_DONT_CARE;
    case EGL_NATIVE_RENDERABLE:
    case EGL_BIND_TO_TEXTURE_RGB:
    case EGL_BIND_TO_TEXTURE_RGBA:
        return value == EGL_TRUE || value == EGL_FALSE || value == EGL_DONT_CARE;
    case EGL_TRANSPARENT_TYPE:
        // EGL_DONT_CARE is rejected here, except for the caveat.
        return value == EGL_NONE || value == EGL_TRANSPARENT_RGB;
    default:
        return true;
    }
}

} // namespace

// Attributes that are not in the list are not tested, not even with a default: an empty list matches every config,
// including those without windows.
std::optional<FallOut> Config::findFallOut(const int32_t *attributes) const {
    std::optional<FallOut> first;            // ignoring the transparent colours
    std::optional<FallOut> firstWithColours; // including them
    bool wantsTransparentRgb = false;
    int32_t passed = 0;
    for (const auto &[name, wanted] : AttributeList(attributes)) {
        int32_t offered = 0;
        if (!getAttribute(name, &offered)) continue;
        const MatchRule rule = findRule(name);
        const bool ok = passes(rule.test, offered, wanted);
        if (ok && rule.weight == Weight::alone) return std::nullopt;
        // The loop continues after a failure, since an id later in the list may decide the result.
        const FallOut reason{name, wanted, offered, passed++};
        if (!ok && !firstWithColours) firstWithColours = reason;
        if (rule.weight == Weight::transparentOnly) continue;
        if (!ok && !first) first = reason;
        if (rule.weight == Weight::asksForRgb && wanted == EGL_TRANSPARENT_RGB) wantsTransparentRgb = true;
    }
    return wantsTransparentRgb ? firstWithColours : first;
}

bool validateAttributeList(const int32_t *attributes) {
    for (const auto &[name, value] : AttributeList(attributes))
        if (!isValidPair(name, value)) return false;
    return true;
}

} // namespace egl
