// All names of the extension catalogue, as a host would list them.
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
