#include "profiles/egl_names.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <iterator>

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include "foundation/attribute_list.h"
#include "profiles/choice_account.h"

namespace egl {

namespace {

enum class Of { config, context, surface };

// The kinds of values.
enum class Kind {
    plain,
    number,
    boolean,
    colourBuffer,
    componentType,
    caveat,
    transparency,
    resetStrategy,
    renderBuffer,
    colourSpace,
    vgColourSpace,
    vgAlpha,
    textureFormat,
    textureTarget,
    apiBits, // this kind and those below: sums of words
    surfaceBits,
    contextBits,
    profileBits,
};

struct Attribute {
    Of of;
    int32_t number;
    const char *name;
    Kind kind;
};

struct Value {
    Kind kind;
    int32_t number;
    const char *name;
};

#define EGL_ATTRIBUTE(of, name, kind)
#define EGL_WORD(kind, name)
#define EGL_ERROR(name)

#undef EGL_ATTRIBUTE
#define EGL_ATTRIBUTE(of, name, kind) {Of::of, name, #name, Kind::kind},
constexpr Attribute attributes[] = {
#include "profiles/data/egl_names.def"
};
#undef EGL_ATTRIBUTE
#define EGL_ATTRIBUTE(of, name, kind)

#undef EGL_WORD
#define EGL_WORD(kind, name) {Kind::kind, static_cast<int32_t>(name), #name},
constexpr Value values[] = {
#include "profiles/data/egl_names.def"
};
#undef EGL_WORD
#define EGL_WORD(kind, name)

#undef EGL_ERROR
#define EGL_ERROR(name) {Kind::plain, name, #name},
constexpr Value errors[] = {
#include "profiles/data/egl_names.def"
};
#undef EGL_ERROR
#undef EGL_WORD
#undef EGL_ATTRIBUTE

constexpr std::string_view prefix = "EGL_";

std::string hexadecimal(int32_t number) {
    char text[16];
    snprintf(text, sizeof text, "0x%04X", static_cast<uint32_t>(number));
    return text;
}

Kind kindOf(int32_t attribute) {
    const auto *found = std::ranges::find(attributes, attribute, &Attribute::number);
    return found == std::end(attributes) ? Kind::plain : found->kind;
}

std::string bitsText(Kind kind, uint32_t bits) {
    std::string text;
    const auto add = [&text](const std::string &word) { text.append(text.empty() ? "" : "|").append(word); };
    for (const Value &value : values) {
        const auto own = static_cast<uint32_t>(value.number);
        if (value.kind != kind || value.number == EGL_DONT_CARE || (bits & own) == 0) continue;
        add(value.name);
        bits &= ~own;
    }
    if (bits != 0 || text.empty()) add(bits == 0 ? "0" : hexadecimal(static_cast<int32_t>(bits)));
    return text;
}

std::string upperCase(std::string_view text) {
    std::string result(text);
    for (char &letter : result)
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    return result;
}

// Compares without case, since names of EGL have small letters too.
bool isMeant(std::string_view word, std::string_view name) {
    const std::string wanted = upperCase(word), whole = upperCase(name);
    return wanted == whole || wanted == whole.substr(prefix.size());
}

std::optional<int32_t> readNumber(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    if (isNegative) text.remove_prefix(1);
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (isHexadecimal) text.remove_prefix(2);
    uint32_t number = 0;
    const auto [end, error] = std::from_chars(text.begin(), text.end(), number, isHexadecimal ? 16 : 10);
    if (error != std::errc() || end != text.end()) return std::nullopt;
    // A hexadecimal number may set the highest bit; any other must fit in an EGLint.
    if (number > INT32_MAX && (isNegative || !isHexadecimal)) return std::nullopt;
    return static_cast<int32_t>(isNegative ? 0u - number : number);
}

std::optional<int32_t> readWord(Kind kind, std::string_view word) {
    for (const Value &value : values) {
        if (value.kind == kind && isMeant(word, value.name)) return value.number;
    }
    if (isMeant(word, "EGL_DONT_CARE")) return EGL_DONT_CARE;
    return readNumber(word);
}

bool canBeNone(int32_t attribute) {
    const Kind kind = kindOf(attribute);
    return kind == Kind::caveat || kind == Kind::transparency || attribute == EGL_NATIVE_VISUAL_TYPE;
}

} // namespace

std::string attributeName(int32_t attribute) {
    const auto *found = std::ranges::find(attributes, attribute, &Attribute::number);
    return found == std::end(attributes) ? hexadecimal(attribute) : found->name;
}

std::string valueText(int32_t attribute, int32_t value) {
    const Kind kind = kindOf(attribute);
    for (const Value &known : values) {
        if (known.kind == kind && known.number == value) return known.name;
    }
    if (kind >= Kind::apiBits) return bitsText(kind, static_cast<uint32_t>(value));
    return kind <= Kind::number || kind == Kind::boolean ? std::to_string(value) : hexadecimal(value);
}

std::string keyName(int32_t key) {
    return key == colourBits ? "colour bits" : attributeName(key);
}

std::string keyText(int32_t key, int32_t value) {
    return key == colourBits ? std::to_string(value) : valueText(key, value);
}

std::string errorName(int32_t error) {
    const auto *found = std::ranges::find(errors, error, &Value::number);
    return found == std::end(errors) ? hexadecimal(error) : found->name;
}

std::string attributeListText(const int32_t *list) {
    std::string text;
    for (const auto &[name, value] : AttributeList(list)) {
        text += (text.empty() ? "" : ", ") + attributeName(name);
        // The end of a list that lacks the last value.
        if (value == EGL_NONE && !canBeNone(name)) break;
        text += ' ' + valueText(name, value);
    }
    return text;
}

std::optional<int32_t> findConfigAttribute(std::string_view name) {
    for (const Attribute &attribute : attributes) {
        if (attribute.of == Of::config && isMeant(name, attribute.name)) return attribute.number;
    }
    return std::nullopt;
}

std::optional<int32_t> readValue(int32_t attribute, std::string_view text) {
    const Kind kind = kindOf(attribute);
    if (kind < Kind::apiBits) return readWord(kind, text);
    int32_t sum = 0;
    for (;;) {
        const size_t end = text.find('|');
        const auto word = readWord(kind, text.substr(0, end));
        if (!word) return std::nullopt;
        sum |= *word;
        if (end == std::string_view::npos) return sum;
        text.remove_prefix(end + 1);
    }
}

std::vector<std::string> configAttributeNames() {
    std::vector<std::string> names;
    for (const Attribute &attribute : attributes) {
        if (attribute.of == Of::config) names.emplace_back(attribute.name);
    }
    return names;
}

std::vector<std::string> valueNames(int32_t attribute) {
    std::vector<std::string> names;
    for (const Value &value : values) {
        if (value.kind == kindOf(attribute)) names.emplace_back(value.name);
    }
    return names;
}

} // namespace egl
