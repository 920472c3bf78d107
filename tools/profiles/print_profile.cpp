#include "tools/profiles/print_profile.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <tinyxml2.h>

#include <cstdio>
#include <iostream>
#include <vector>

namespace {

using tinyxml2::XMLElement;

std::string textOf(const XMLElement &element) {
    const char *text = element.GetText();
    return text ? text : "";
}

std::string namesOf(int32_t bits, std::initializer_list<std::pair<int32_t, const char *>> names) {
    std::string list;
    for (const auto &[bit, name] : names) {
        if (bits & bit) list += (list.empty() ? "" : ",") + std::string(name);
    }
    return list.empty() ? "-" : list;
}

std::string apisOf(int32_t bits) {
    return namesOf(bits, {{EGL_OPENGL_ES_BIT, "es1"},
                          {EGL_OPENGL_ES2_BIT, "es2"},
                          {EGL_OPENGL_ES3_BIT_KHR, "es3"},
                          {EGL_OPENGL_BIT, "gl"}});
}

void printConfigs(const egl::DeviceProfile &profile) {
    printf("\nconfigs: %zu\n", profile.configs.size());
    if (profile.configs.empty()) return;
    printf("  %4s %6s  %-7s %5s %7s %7s  %-4s  %-21s %-12s %-12s\n", "id", "buffer", "r g b a", "depth", "stencil",
           "samples", "slow", "surfaces", "renderable", "conformant");
    for (const egl::Config &config : profile.configs) {
        const auto value = [&](int32_t attribute) { return config.attributeOr0(attribute); };
        const std::string surfaces =
            namesOf(value(EGL_SURFACE_TYPE),
                    {{EGL_WINDOW_BIT, "window"}, {EGL_PBUFFER_BIT, "pbuffer"}, {EGL_PIXMAP_BIT, "pixmap"}});
        printf("  %4d %6d  %d %d %d %d %5d %7d %7d  %-4s  %-21s %-12s %-12s\n", value(EGL_CONFIG_ID),
               value(EGL_BUFFER_SIZE), value(EGL_RED_SIZE), value(EGL_GREEN_SIZE), value(EGL_BLUE_SIZE),
               value(EGL_ALPHA_SIZE), value(EGL_DEPTH_SIZE), value(EGL_STENCIL_SIZE), value(EGL_SAMPLES),
               value(EGL_CONFIG_CAVEAT) == EGL_SLOW_CONFIG ? "yes" : "no", surfaces.c_str(),
               apisOf(value(EGL_RENDERABLE_TYPE)).c_str(), apisOf(value(EGL_CONFORMANT)).c_str());
    }
}

// The element's text, or its children as "min 1 max 16".
std::string valueOf(const XMLElement &element) {
    std::string value = textOf(element);
    for (auto *child = element.FirstChildElement(); child; child = child->NextSiblingElement())
        value += (value.empty() ? "" : " ") + std::string(child->Name()) + " " + textOf(*child);
    return value;
}

void printBlock(const XMLElement &block) {
    const char *version = block.Attribute("version");
    std::vector<std::string> extensions;
    std::vector<std::pair<std::string, std::string>> limits; // name, values
    for (auto *child = block.FirstChildElement(); child; child = child->NextSiblingElement()) {
        const std::string name = child->Name();
        if (name == "extension") {
            extensions.push_back(textOf(*child));
        } else if (!limits.empty() && limits.back().first == name) {
            limits.back().second += ", " + valueOf(*child);
        } else {
            limits.emplace_back(name, valueOf(*child));
        }
    }
    std::cout << "\nes " << (version ? version : "without a version") << ", extensions: " << extensions.size() << '\n';
    for (const std::string &extension : extensions)
        std::cout << "  " << extension << '\n';
    std::cout << "es " << (version ? version : "without a version") << ", limits: " << limits.size() << '\n';
    for (const auto &[name, values] : limits)
        std::cout << "  " << name << ": " << values << '\n';
}

} // namespace

const char *versionName(capability::EsVersion version) {
    static constexpr const char *names[] = {"", "1.x", "2.0", "3.0", "3.1", "3.2"};
    return names[version];
}

std::string versionsText(const egl::DeviceProfile &profile) {
    std::string list;
    for (const capability::EsVersion version : profile.esVersions)
        list += (list.empty() ? "" : ", ") + std::string(versionName(version));
    return list.empty() ? "none" : list;
}

void printProfile(const egl::DeviceProfile &profile, std::string_view text) {
    tinyxml2::XMLDocument document;
    document.Parse(text.data(), text.size());
    const XMLElement *root = document.FirstChildElement("profile");
    std::cout << "name: " << profile.name << '\n';
    for (const char *identity : {"device", "renderer", "vendor"}) {
        const auto *element = root->FirstChildElement(identity);
        if (element) std::cout << identity << ": " << textOf(*element) << '\n';
    }
    std::cout << "es versions: " << versionsText(profile) << std::endl;
    printConfigs(profile);
    fflush(stdout);
    for (auto *block = root->FirstChildElement("es"); block; block = block->NextSiblingElement("es"))
        printBlock(*block);
}
