#include "tools/command/json.h"

#include <cstdio>

namespace {

// Length of the character that starts here, or 0 when it is none.
size_t characterLength(std::string_view text) {
    const auto byte = [&](size_t index) { return static_cast<unsigned char>(text[index]); };
    const unsigned char lead = byte(0);
    if (lead < 0x80) return 1;
    const size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length) return 0;
    for (size_t index = 1; index < length; ++index) {
        if ((byte(index) & 0xC0) != 0x80) return 0;
    }
    // Longer forms than needed, surrogates and what lies beyond the last character.
    const bool isOutside = (lead == 0xE0 && byte(1) < 0xA0) || (lead == 0xED && byte(1) > 0x9F) ||
                           (lead == 0xF0 && byte(1) < 0x90) || (lead == 0xF4 && byte(1) > 0x8F);
    return isOutside ? 0 : length;
}

std::string escaped(char character) {
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\t':
        return "\\t";
    default:
        break;
    }
    const auto code = static_cast<unsigned char>(character);
    if (code >= 0x20 && code != 0x7F) return {character};
    char escape[8];
    snprintf(escape, sizeof escape, "\\u%04x", code);
    return escape;
}

} // namespace

std::string jsonText(std::string_view text) {
    std::string result = "\"";
    while (!text.empty()) {
        const size_t length = characterLength(text);
        if (length == 0) {
            result += "\\ufffd";
        } else {
            result += length == 1 ? escaped(text[0]) : std::string(text.substr(0, length));
        }
        text.remove_prefix(length ? length : 1);
    }
    return result + '"';
}
