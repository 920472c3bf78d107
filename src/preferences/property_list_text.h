// How values are written in a property list, independent of the application's global locale.
#pragma once

#include <locale>
#include <sstream>
#include <string>

[[nodiscard]] inline std::string textOf(const std::string &value) {
    return value;
}

// The output of a default-formatted stream, a bool as a word.
template <typename T>
[[nodiscard]] std::string textOf(const T &value) {
    std::ostringstream stream;
    stream.imbue(std::locale::classic());
    stream << std::boolalpha << value;
    return stream.str();
}

inline bool parseText(const std::string &text, std::string &value) {
    value = text;
    return true;
}

// Skips leading white space and ignores what follows the value. A failure returns what the extraction left, or zero
// if there was nothing to extract.
template <typename T>
[[nodiscard]] bool parseText(const std::string &text, T &value) {
    std::istringstream stream(text);
    stream.imbue(std::locale::classic());
    value = T();
    stream >> std::boolalpha >> value;
    return !stream.fail();
}
