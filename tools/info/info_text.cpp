#include "tools/info/info_text.h"

#include "profiles/egl_names.h"
#include "tools/profiles/print_profile.h"

namespace {

std::string listText(const Json &list, const char *separator) {
    std::string text;
    for (const Json &item : list)
        text += (text.empty() ? "" : separator) + (item.is_string() ? item.get<std::string>() : item.dump());
    return text;
}

std::string indented(const std::string &title, const Json &list) {
    std::string text = title + ": " + std::to_string(list.size()) + '\n';
    for (const Json &item : list)
        text += "  " + item.get<std::string>() + '\n';
    return text;
}

std::string configsText(const Json &rows) {
    std::vector<egl::Config> configs;
    for (const Json &row : rows) {
        egl::Config &config = configs.emplace_back();
        for (const auto &[name, value] : row.items()) {
            const int32_t attribute = *egl::findConfigAttribute(name);
            config.setAttribute(attribute, egl::readValue(attribute, value.get<std::string>()).value_or(0));
        }
    }
    return configTable(configs);
}

std::string contextText(const Json &context) {
    const std::string language =
        context["shadingLanguageVersion"].is_null() ? "none" : context["shadingLanguageVersion"].get<std::string>();
    std::string text = "\ncontexts for requests of OpenGL ES " + listText(context["requests"], ", ") +
                       "\nGL_VENDOR:   " + context["vendor"].get<std::string>() +
                       "\nGL_RENDERER: " + context["renderer"].get<std::string>() +
                       "\nGL_VERSION:  " + context["version"].get<std::string>() +
                       "\nGL_SHADING_LANGUAGE_VERSION: " + language + '\n' +
                       indented("extensions", context["extensions"]) +
                       indented("compressed texture formats", context["compressedTextureFormats"]);
    text += "limits: " + std::to_string(context["limits"].size()) + '\n';
    for (const auto &[name, value] : context["limits"].items())
        text += "  " + name + ": " + (value.is_array() ? listText(value, " ") : value.dump()) + '\n';
    return text;
}

} // namespace

std::string infoAsText(const Json &info) {
    const Json &display = info["display"];
    std::string text = "device:      " + (info["device"].is_null() ? "none" : info["device"].get<std::string>()) +
                       "\nEGL vendor:  " + display["vendor"].get<std::string>() +
                       "\nEGL version: " + display["version"].get<std::string>() +
                       "\nclient APIs: " + listText(display["clientApis"], " ") + "\n\n" +
                       indented("client extensions", info["client"]["extensions"]) + '\n' +
                       indented("display extensions", display["extensions"]) + configsText(info["configs"]);
    for (const Json &context : info["contexts"])
        text += contextText(context);
    if (!info["refused"].empty()) text += '\n';
    for (const Json &refused : info["refused"])
        text +=
            "OpenGL ES " + refused["version"].get<std::string>() + ": " + refused["error"].get<std::string>() + '\n';
    return text;
}
