#include "tools/profiles/print_profile.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <tinyxml2.h>

#include <cstdio>
#include <iostream>
#include <vector>

#include "tools/profiles/es_blocks.h"

namespace {

using tinyxml2::XMLElement;

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

void printBlock(const EsBlockText &block) {
    const std::string head = "es " + (block.version.empty() ? "without a version" : block.version);
    std::cout << '\n' << head << ", extensions: " << block.extensions.size() << '\n';
    for (const std::string &extension : block.extensions)
        std::cout << "  " << extension << '\n';
    std::cout << head << ", limits: " << block.limits.size() << '\n';
    for (const auto &[name, values] : block.limits) {
        std::string list;
        for (const std::string &value : values)
            list += (list.empty() ? "" : ", ") + value;
        std::cout << "  " << name << ": " << list << '\n';
    }
}

std::string configRow(const egl::Config &config) {
    const auto value = [&](int32_t attribute) { return config.attributeOr0(attribute); };
    const std::string surfaces =
        namesOf(value(EGL_SURFACE_TYPE),
                {{EGL_WINDOW_BIT, "window"}, {EGL_PBUFFER_BIT, "pbuffer"}, {EGL_PIXMAP_BIT, "pixmap"}});
    char row[256];
    snprintf(row, sizeof row, "  %4d %6d  %d %d %d %d %5d %7d %7d  %-4s  %-21s %-12s %-12s\n", value(EGL_CONFIG_ID),
             value(EGL_BUFFER_SIZE), value(EGL_RED_SIZE), value(EGL_GREEN_SIZE), value(EGL_BLUE_SIZE),
             value(EGL_ALPHA_SIZE), value(EGL_DEPTH_SIZE), value(EGL_STENCIL_SIZE), value(EGL_SAMPLES),
             value(EGL_CONFIG_CAVEAT) == EGL_SLOW_CONFIG ? "yes" : "no", surfaces.c_str(),
             apisOf(value(EGL_RENDERABLE_TYPE)).c_str(), apisOf(value(EGL_CONFORMANT)).c_str());
    return row;
}

} // namespace

std::string configTable(const std::vector<egl::Config> &configs) {
    std::string table = "\nconfigs: " + std::to_string(configs.size()) + '\n';
    if (configs.empty()) return table;
    char head[256];
    snprintf(head, sizeof head, "  %4s %6s  %-7s %5s %7s %7s  %-4s  %-21s %-12s %-12s\n", "id", "buffer", "r g b a",
             "depth", "stencil", "samples", "slow", "surfaces", "renderable", "conformant");
    table += head;
    for (const egl::Config &config : configs)
        table += configRow(config);
    return table;
}

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
        if (element) std::cout << identity << ": " << elementText(*element) << '\n';
    }
    std::cout << "es versions: " << versionsText(profile) << '\n'
              << configTable({profile.configs.begin(), profile.configs.end()});
    for (const EsBlockText &block : readEsBlocks(*root))
        printBlock(block);
}
