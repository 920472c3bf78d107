#include "tools/explain/criteria.h"

#include <algorithm>

#include <EGL/egl.h>

#include "profiles/egl_names.h"
#include "tools/command/nearest.h"
#include "tools/command/verb.h"

namespace {

std::string upperCase(std::string text) {
    for (char &letter : text)
        if (letter >= 'a' && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
    return text;
}

// A suggestion for a word, with names in the word's form: with or without "EGL_".
std::string meant(const std::string &word, std::vector<std::string> names) {
    constexpr std::string_view prefix = "EGL_";
    const std::string wanted = upperCase(word);
    if (!wanted.starts_with(prefix))
        for (std::string &name : names)
            name.erase(0, prefix.size());
    return suggestion(wanted, names);
}

std::string listText(const std::vector<std::string> &names) {
    std::string text;
    for (const std::string &name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

int32_t valueOf(int32_t attribute, const std::string &text) {
    if (const auto value = egl::readValue(attribute, text)) return *value;
    const std::vector<std::string> names = egl::valueNames(attribute);
    const std::string known = names.empty() ? "a number" : "a number or one of " + listText(names);
    throw UsageError{'"' + text + "\" is not a value of " + egl::attributeName(attribute) + ", which takes " + known +
                     meant(text, names)};
}

} // namespace

std::vector<int32_t> readCriteria(const std::vector<std::string> &words) {
    std::vector<int32_t> list;
    for (const std::string &word : words) {
        const size_t equals = word.find('=');
        if (equals == std::string::npos) throw UsageError{'"' + word + "\" has no \"=\" between attribute and value"};
        const std::string name = word.substr(0, equals);
        const auto attribute = egl::findConfigAttribute(name);
        if (!attribute)
            throw UsageError{"configs have no attribute \"" + name + '"' + meant(name, egl::configAttributeNames())};
        list.insert(list.end(), {*attribute, valueOf(*attribute, word.substr(equals + 1))});
    }
    list.push_back(EGL_NONE);
    return list;
}
