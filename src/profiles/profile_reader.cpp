#include "profiles/profile_reader.h"

#include <EGL/egl.h>
#include <tinyxml2.h>

#include <cstdio>

#include "foundation/paths.h"
#include "profiles/config_maker.h"
#include "profiles/embedded_profiles.h"

namespace egl {

namespace {

constexpr struct {
    int32_t version;
    capability::EsVersion token;
} versionTokens[] = {
    {1, capability::es1_1}, {11, capability::es1_1}, {2, capability::es2_0},  {20, capability::es2_0},
    {3, capability::es3_0}, {30, capability::es3_0}, {31, capability::es3_1}, {32, capability::es3_2},
};

std::optional<std::string> readFile(const std::string &path) {
    FILE *file = openForReading(path);
    if (!file) return std::nullopt;
    std::string text;
    char buffer[1 << 14];
    while (const size_t count = fread(buffer, 1, sizeof buffer, file))
        text.append(buffer, count);
    fclose(file);
    return text;
}

Config readConfig(const tinyxml2::XMLElement &element) {
    Config config;
    ConfigMaker maker(config);
    element.Accept(&maker);
    config.setAttribute(EGL_CONFIG_ID, element.IntAttribute("id"));
    return config;
}

} // namespace

std::optional<std::string> findProfileText(const CKZRTString &directory, const CKZRTString &name) {
    if (name.empty()) return std::nullopt;
    std::string text = findEmbeddedProfile(name.data());
    if (!text.empty()) return text;
    return readFile((directory + "/" + name).data());
}

bool readDeviceProfile(DeviceProfile &profile, std::string_view text, const CKZRTString &name) {
    tinyxml2::XMLDocument document;
    if (document.Parse(text.data(), text.size()) != tinyxml2::XML_SUCCESS) return false;
    profile.name = name.data();
    const tinyxml2::XMLElement *root = document.FirstChildElement("profile");
    const tinyxml2::XMLElement *egl = root ? root->FirstChildElement("egl") : nullptr;
    if (!egl) return false;
    profile.hasConfigsOfHostOnly = egl->BoolAttribute("host_only");

    for (auto *config = egl->FirstChildElement("config"); config; config = config->NextSiblingElement("config"))
        profile.configs.insert(readConfig(*config));
    for (auto *es = root->FirstChildElement("es"); es; es = es->NextSiblingElement("es")) {
        if (const auto token = findVersionToken(es->IntAttribute("version"))) profile.esVersions.insert(*token);
    }
    return true;
}

bool loadDeviceProfile(DeviceProfile &profile, const CKZRTString &directory, const CKZRTString &name,
                       std::string *text) {
    auto found = findProfileText(directory, name);
    if (!found || !readDeviceProfile(profile, *found, name)) return false;
    if (text) *text = std::move(*found);
    return true;
}

std::optional<capability::EsVersion> findVersionToken(int32_t version) {
    for (const auto &row : versionTokens) {
        if (row.version == version) return row.token;
    }
    return std::nullopt;
}

} // namespace egl
