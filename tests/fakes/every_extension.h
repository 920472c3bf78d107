// All names of the extension catalogue, in the form of a host's extension string.
#pragma once

#include <initializer_list>
#include <string>

constexpr const char *everyExtension =
#define HOST_EXTENSION(value, name) name " "
#include "capability/data/host_extensions.def"
#undef HOST_EXTENSION
    ;

inline std::string everyExtensionBut(std::initializer_list<std::string> names) {
    std::string text = everyExtension;
    for (const auto &name : names)
        text.erase(text.find(name + " "), name.size() + 1);
    return text;
}
