#include "profiles/standard_choice.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <algorithm>
#include <array>
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

// The standard has these in lists and takes no notice of them.
constexpr int32_t passedOver[] = {EGL_MAX_PBUFFER_WIDTH, EGL_MAX_PBUFFER_HEIGHT, EGL_MAX_PBUFFER_PIXELS,
                                  EGL_NATIVE_VISUAL_ID};

using Request = std::map<int32_t, int32_t>;

// The last of several values of an attribute counts.
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

int32_t caveatRank(const Config &config) {
    switch (config.attributeOr0(EGL_CONFIG_CAVEAT)) {
    case EGL_SLOW_CONFIG:
        return 1;
    case EGL_NON_CONFORMANT_CONFIG:
        return 2;
    default:
        return 0;
    }
}

// Of the sizes that the request asks for.
int32_t colourBits(const Config &config, const Request &request) {
    int32_t bits = 0;
    for (const int32_t channel : {EGL_RED_SIZE, EGL_GREEN_SIZE, EGL_BLUE_SIZE, EGL_ALPHA_SIZE, EGL_LUMINANCE_SIZE}) {
        const int32_t wanted = valueOr(request, channel, 0);
        if (wanted != 0 && wanted != EGL_DONT_CARE) bits += config.attributeOr0(channel);
    }
    return bits;
}

// The smaller comes first.
auto sortKey(const Config &config, const Request &request) {
    constexpr int32_t sizes[] = {EGL_BUFFER_SIZE,        EGL_SAMPLE_BUFFERS, EGL_SAMPLES,
                                 EGL_DEPTH_SIZE,         EGL_STENCIL_SIZE,   EGL_ALPHA_MASK_SIZE,
                                 EGL_NATIVE_VISUAL_TYPE, EGL_CONFIG_ID};
    std::array<int32_t, std::size(sizes) + 3> key{caveatRank(config), config.attributeOr0(EGL_COLOR_BUFFER_TYPE),
                                                  -colourBits(config, request)};
    for (size_t i = 0; i < std::size(sizes); ++i)
        key[i + 3] = config.attributeOr0(sizes[i]);
    return key;
}

} // namespace

bool isValidByStandard(const int32_t *attributes) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        if (!isKnown(name) || !isValidValue(name, value)) return false;
    }
    return true;
}

bool matchesByStandard(const Config &config, const int32_t *attributes) {
    const Request request = readRequest(attributes);
    // An id stands for itself alone.
    const int32_t id = valueOr(request, EGL_CONFIG_ID, EGL_DONT_CARE);
    if (id != EGL_DONT_CARE) return config.attributeOr0(EGL_CONFIG_ID) == id;
    for (const Choice &choice : choices) {
        int32_t offered = 0;
        if (!config.getAttribute(choice.attribute, &offered)) continue;
        if (!passes(choice.rule, offered, valueOr(request, choice.attribute, choice.byDefault))) return false;
    }
    if (valueOr(request, EGL_TRANSPARENT_TYPE, EGL_NONE) != EGL_TRANSPARENT_RGB) return true;
    return std::ranges::all_of(transparentColours, [&](int32_t colour) {
        return passes(Rule::exact, config.attributeOr0(colour), valueOr(request, colour, EGL_DONT_CARE));
    });
}

void sortByStandard(std::vector<Config> &configs, const int32_t *attributes) {
    const Request request = readRequest(attributes);
    std::ranges::sort(configs, {}, [&](const Config &config) { return sortKey(config, request); });
}

} // namespace egl
