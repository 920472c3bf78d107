#include "profiles/standard_choice.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <algorithm>
#include <map>
#include <span>

#include "foundation/attribute_list.h"

namespace egl {

namespace {

enum class Rule { atLeast, exact, mask };

struct Choice {
    int32_t attribute;
    int32_t byDefault;
    Rule rule;
};

constexpr Choice choices[] = {
#define CHOICE(attribute, byDefault, rule) {attribute, byDefault, Rule::rule},
#include "profiles/data/standard_choice.def"
#undef CHOICE
};

constexpr int32_t transparentColours[] = {EGL_TRANSPARENT_RED_VALUE, EGL_TRANSPARENT_GREEN_VALUE,
                                          EGL_TRANSPARENT_BLUE_VALUE};

// EGL allows these attributes in lists and ignores them.
constexpr int32_t passedOver[] = {EGL_MAX_PBUFFER_WIDTH, EGL_MAX_PBUFFER_HEIGHT, EGL_MAX_PBUFFER_PIXELS,
                                  EGL_NATIVE_VISUAL_ID};

using Request = std::map<int32_t, int32_t>;

// Of several values of an attribute the last one is used.
Request readRequest(const int32_t *attributes) {
    Request request;
    for (const auto &[name, value] : AttributeList(attributes))
        request[name] = value;
    return request;
}

int32_t valueOr(const Request &request, int32_t attribute, int32_t otherwise) {
    const auto found = request.find(attribute);
    return found == request.end() ? otherwise : found->second;
}

bool contains(std::span<const int32_t> list, int32_t attribute) {
    return std::ranges::find(list, attribute) != list.end();
}

bool isKnown(int32_t attribute) {
    return attribute == EGL_CONFIG_ID || attribute == EGL_MATCH_NATIVE_PIXMAP || contains(passedOver, attribute) ||
           contains(transparentColours, attribute) ||
           std::ranges::find(choices, attribute, &Choice::attribute) != std::end(choices);
}

bool isBoolean(int32_t attribute) {
    return attribute == EGL_BIND_TO_TEXTURE_RGB || attribute == EGL_BIND_TO_TEXTURE_RGBA ||
           attribute == EGL_NATIVE_RENDERABLE;
}

bool isValidValue(int32_t attribute, int32_t value) {
    const bool isAny = value == EGL_DONT_CARE;
    switch (attribute) {
    case EGL_LEVEL:
    case EGL_MATCH_NATIVE_PIXMAP:
        return !isAny;
    case EGL_CONFIG_CAVEAT:
        return isAny || value == EGL_NONE || value == EGL_SLOW_CONFIG || value == EGL_NON_CONFORMANT_CONFIG;
    case EGL_COLOR_BUFFER_TYPE:
        return isAny || value == EGL_RGB_BUFFER || value == EGL_LUMINANCE_BUFFER;
    case EGL_COLOR_COMPONENT_TYPE_EXT:
        return isAny || value == EGL_COLOR_COMPONENT_TYPE_FIXED_EXT || value == EGL_COLOR_COMPONENT_TYPE_FLOAT_EXT;
    case EGL_TRANSPARENT_TYPE:
        return isAny || value == EGL_NONE || value == EGL_TRANSPARENT_RGB;
    case EGL_SAMPLE_BUFFERS:
        return isAny || value == 0 || value == 1;
    default:
        break;
    }
    if (isBoolean(attribute)) return isAny || value == EGL_TRUE || value == EGL_FALSE;
    const auto row = std::ranges::find(choices, attribute, &Choice::attribute);
    const bool isSize = row != std::end(choices) && row->rule == Rule::atLeast;
    return !isSize || value >= EGL_DONT_CARE;
}

bool passes(Rule rule, int32_t offered, int32_t wanted) {
    if (wanted == EGL_DONT_CARE) return true;
    switch (rule) {
    case Rule::atLeast:
        return offered >= wanted;
    case Rule::exact:
        return offered == wanted;
    case Rule::mask:
        return (offered & wanted) == wanted;
    }
    return false;
}

int32_t caveatRank(int32_t caveat) {
    switch (caveat) {
    case EGL_SLOW_CONFIG:
        return 1;
    case EGL_NON_CONFORMANT_CONFIG:
        return 2;
    default:
        return 0;
    }
}

// The sum of the sizes that the request contains.
int32_t sumColourBits(const Config &config, const Request &request) {
    uint32_t bits = 0; // profiles may hold sizes whose sum overflows
    for (const int32_t channel : {EGL_RED_SIZE, EGL_GREEN_SIZE, EGL_BLUE_SIZE, EGL_ALPHA_SIZE, EGL_LUMINANCE_SIZE}) {
        const int32_t wanted = valueOr(request, channel, 0);
        if (wanted != 0 && wanted != EGL_DONT_CARE) bits += static_cast<uint32_t>(config.attributeOr0(channel));
    }
    return static_cast<int32_t>(bits);
}

// The attributes in order of significance. Smaller values are sorted first, except for colour bits.
constexpr int32_t sortKeys[] = {EGL_CONFIG_CAVEAT,      EGL_COLOR_BUFFER_TYPE, colourBits,
                                EGL_BUFFER_SIZE,        EGL_SAMPLE_BUFFERS,    EGL_SAMPLES,
                                EGL_DEPTH_SIZE,         EGL_STENCIL_SIZE,      EGL_ALPHA_MASK_SIZE,
                                EGL_NATIVE_VISUAL_TYPE, EGL_CONFIG_ID};

int32_t keyValue(const Config &config, const Request &request, int32_t key) {
    return key == colourBits ? sumColourBits(config, request) : config.attributeOr0(key);
}

int32_t rankOf(int32_t key, int32_t value) {
    if (key == EGL_CONFIG_CAVEAT) return caveatRank(value);
    return key == colourBits ? ~value : value; // negation could overflow
}

Comparison compare(const Config &a, const Config &b, const Request &request) {
    for (const int32_t key : sortKeys) {
        const int32_t former = keyValue(a, request, key), latter = keyValue(b, request, key);
        const int32_t formerRank = rankOf(key, former), latterRank = rankOf(key, latter);
        if (formerRank != latterRank) return {formerRank < latterRank, key, former, latter};
    }
    return {false, EGL_CONFIG_ID, a.attributeOr0(EGL_CONFIG_ID), b.attributeOr0(EGL_CONFIG_ID)};
}

} // namespace

bool isValidByStandard(const int32_t *attributes) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        if (!isKnown(name) || !isValidValue(name, value)) return false;
    }
    return true;
}

std::optional<FallOut> findFallOutByStandard(const Config &config, const int32_t *attributes) {
    const Request request = readRequest(attributes);
    // With an id all other attributes are ignored.
    const int32_t id = valueOr(request, EGL_CONFIG_ID, EGL_DONT_CARE);
    if (id != EGL_DONT_CARE) {
        const int32_t own = config.attributeOr0(EGL_CONFIG_ID);
        return own == id ? std::nullopt : std::optional(FallOut{EGL_CONFIG_ID, id, own});
    }
    int32_t passed = 0;
    for (const Choice &choice : choices) {
        int32_t offered = 0;
        if (!config.getAttribute(choice.attribute, &offered)) continue;
        const int32_t wanted = valueOr(request, choice.attribute, choice.byDefault);
        if (!passes(choice.rule, offered, wanted)) return FallOut{choice.attribute, wanted, offered, passed};
        ++passed;
    }
    if (valueOr(request, EGL_TRANSPARENT_TYPE, EGL_NONE) != EGL_TRANSPARENT_RGB) return std::nullopt;
    for (const int32_t colour : transparentColours) {
        const int32_t offered = config.attributeOr0(colour), wanted = valueOr(request, colour, EGL_DONT_CARE);
        if (!passes(Rule::exact, offered, wanted)) return FallOut{colour, wanted, offered, passed};
    }
    return std::nullopt;
}

void sortByStandard(std::vector<Config> &configs, const int32_t *attributes) {
    const Request request = readRequest(attributes);
    std::ranges::sort(configs, [&](const Config &a, const Config &b) { return compare(a, b, request).isBefore; });
}

Comparison compareByStandard(const Config &a, const Config &b, const int32_t *attributes) {
    return compare(a, b, readRequest(attributes));
}

} // namespace egl
