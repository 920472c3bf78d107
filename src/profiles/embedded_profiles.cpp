#include "profiles/embedded_profiles.h"

#include <tinyxml2.h>

#include "read_only_bytes.h" // of the target platform

// The bytes of each file between two symbols. The build declares that this object depends on the files.
#define EMBEDDED_PROFILE(file)                                                                                         \
    asm(READ_ONLY_SECTION READ_ONLY_SYMBOL(                                                                            \
        "zelvane_profile_" #file) ".incbin \"" ZELVANE_PROFILE_DATA "/" #file                                          \
                                  ".xml\"\n" READ_ONLY_SYMBOL("zelvane_profile_end_" #file) ".byte 0\n.previous");     \
    extern "C" const char zelvane_profile_##file[], zelvane_profile_end_##file[];
#include "profiles/data/embedded_profiles.def"
#undef EMBEDDED_PROFILE

namespace egl {

namespace {

constexpr std::string_view generic = "Generic ";

// A fast check before parsing: parsing all texts takes longer than the host's creation of a context. No embedded name
// contains entities.
bool canHaveName(std::string_view text, std::string_view name) {
    if (text.find(name) != text.npos) return true;
    return name.starts_with(generic) && text.find(name.substr(generic.size())) != text.npos;
}

std::string textOf(const tinyxml2::XMLElement *element) {
    const char *text = element->GetText();
    return text ? text : "";
}

} // namespace

const std::vector<std::string_view> &embeddedProfiles = *new std::vector<std::string_view>{
#define EMBEDDED_PROFILE(file) std::string_view(zelvane_profile_##file, zelvane_profile_end_##file),
#include "profiles/data/embedded_profiles.def"
#undef EMBEDDED_PROFILE
};

std::string profileDisplayName(std::string_view text) {
    tinyxml2::XMLDocument document;
    if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS) return {};
    const tinyxml2::XMLElement *profile = document.FirstChildElement("profile");
    if (!profile) return {};
    if (const auto *device = profile->FirstChildElement("device")) return textOf(device);
    if (const auto *renderer = profile->FirstChildElement("renderer")) return std::string(generic) + textOf(renderer);
    return {};
}

std::string findEmbeddedProfile(std::string_view name) {
    for (const std::string_view text : embeddedProfiles) {
        if (canHaveName(text, name) && profileDisplayName(text) == name) return std::string(text);
    }
    return {};
}

} // namespace egl
