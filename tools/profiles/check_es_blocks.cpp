#include "tools/profiles/check_es_blocks.h"

#include <tinyxml2.h>

#include <algorithm>
#include <cstdlib>
#include <map>

#include "capability/extension_catalogue.h"
#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/command/es_limits.h"
#include "tools/command/nearest.h"
#include "tools/profiles/es_blocks.h"
#include "tools/profiles/print_profile.h"

namespace {

using tinyxml2::XMLElement;

struct LimitElement {
    std::string name;
    size_t count; // of numbers; 0 for repeated elements with one value each
};

std::vector<LimitElement> limitElements() {
    std::vector<LimitElement> elements = {{"compressed_texture_format", 0},
                                          {"internal_format", 0},
                                          {"program_binary_format", 0},
                                          {"shader_binary_format", 0}};
    for (const EsLimit &limit : esLimits())
        elements.push_back({elementOf(limit), limit.count});
    return elements;
}

std::string withPrefix(const std::string &name) {
    return name.starts_with("GL_") ? name : "GL_" + name;
}

// Vendor extensions, which no other list contains.
void addExtensionsOfBuiltInDevices(std::vector<std::string> &names) {
    for (const std::string_view text : egl::embeddedProfiles) {
        tinyxml2::XMLDocument document;
        document.Parse(text.data(), text.size());
        for (const EsBlockText &block : readEsBlocks(*document.FirstChildElement("profile"))) {
            for (const std::string &extension : block.extensions)
                if (withPrefix(extension).starts_with("GL_TWG_")) names.push_back(withPrefix(extension));
        }
    }
}

// With the prefix "GL_", as back ends report them.
std::vector<std::string> extensionNames() {
    std::vector<std::string> names;
    for (const std::string_view name : journal::esExtensionNames())
        names.emplace_back(name);
    addExtensionsOfBuiltInDevices(names);
    constexpr capability::EsExtension last = 127;
    for (capability::EsExtension extension = 1; extension <= last; ++extension)
        names.emplace_back(capability::esExtensionName(extension, true));
    return names;
}

class EsCheck {
public:
    EsCheck(const egl::DeviceProfile &profile, ProfileFindings &findings) : m_profile(profile), m_findings(findings) {}

    void checkBlock(const XMLElement &block);

private:
    void checkVersion(const XMLElement &block);
    void checkConfigsFor(const XMLElement &block, capability::EsVersion version);
    void checkExtension(const XMLElement &element);
    void checkLimit(const XMLElement &element);
    // Whether the text is a number.
    bool checkNumber(const std::string &name, const XMLElement &element);

    const egl::DeviceProfile &m_profile;
    ProfileFindings &m_findings;
    const std::vector<LimitElement> m_limits = limitElements();
    const std::vector<std::string> m_extensions = extensionNames();
    std::map<capability::EsVersion, int> m_lines; // by version, of the blocks so far
};

void EsCheck::checkBlock(const XMLElement &block) {
    checkVersion(block);
    for (auto *child = block.FirstChildElement(); child; child = child->NextSiblingElement()) {
        const std::string_view name = child->Name();
        if (name == "extension")
            checkExtension(*child);
        else if (name != capturedElement)
            checkLimit(*child);
    }
}

void EsCheck::checkVersion(const XMLElement &block) {
    const int line = block.GetLineNum(), number = block.IntAttribute("version");
    const char *text = block.Attribute("version");
    const auto version = egl::findVersionToken(number);
    if (!version) {
        m_findings.problem(line, "es has " + (text ? "the version " + quotedText(text) : std::string("no version")) +
                                     ": ignored; 1, 11, 2, 20, 3, 30, 31 and 32 are known");
        return;
    }
    if (text != std::to_string(number))
        m_findings.problem(line, "version " + quotedText(text) + " reads as " + std::to_string(number));
    const auto [known, isFirst] = m_lines.insert({*version, line});
    if (!isFirst) {
        m_findings.problem(line, std::string("es ") + versionName(*version) + " is already at line " +
                                     std::to_string(known->second) + ": only one block of a version is read");
    } else {
        checkConfigsFor(block, *version);
    }
}

void EsCheck::checkConfigsFor(const XMLElement &block, capability::EsVersion version) {
    static constexpr const char *bits[] = {"EGL_OPENGL_ES_BIT", "EGL_OPENGL_ES2_BIT", "EGL_OPENGL_ES3_BIT_KHR"};
    const int32_t major = std::min<int32_t>(version, 3);
    const bool isSupported = std::ranges::any_of(
        m_profile.configs, [&](const egl::Config &config) { return config.supportsClientVersion(major); });
    if (isSupported) return;
    m_findings.problem(block.GetLineNum(), std::string("no config has ") + bits[major - 1] +
                                               " among its renderable_type: no context of es " + versionName(version) +
                                               " can be created");
}

void EsCheck::checkExtension(const XMLElement &element) {
    if (elementText(element).empty()) return m_findings.problem(element.GetLineNum(), "extension has no name: ignored");
    const std::string name = withPrefix(elementText(element));
    if (std::ranges::find(m_extensions, name) != m_extensions.end()) return;
    m_findings.note(element.GetLineNum(),
                    quotedText(name) + " is not a known extension" + suggestion(name, m_extensions));
}

void EsCheck::checkLimit(const XMLElement &element) {
    const std::string name = element.Name();
    const auto limit = std::ranges::find(m_limits, name, &LimitElement::name);
    if (limit == m_limits.end()) {
        std::vector<std::string> names;
        for (const LimitElement &known : m_limits)
            names.push_back(known.name);
        m_findings.problem(element.GetLineNum(),
                           name + " is not a limit of OpenGL ES: ignored" + suggestion(name, names));
        return;
    }
    if (name == "internal_format") return;
    size_t count = 0;
    if (!element.FirstChildElement()) count += checkNumber(name, element);
    for (auto *child = element.FirstChildElement(); child; child = child->NextSiblingElement())
        count += checkNumber(name + ' ' + child->Name(), *child);
    if (count > 0 && count < limit->count) {
        m_findings.problem(element.GetLineNum(), name + " has " + std::to_string(count) + " of " +
                                                     std::to_string(limit->count) + " numbers: ignored");
    }
}

bool EsCheck::checkNumber(const std::string &name, const XMLElement &element) {
    const std::string text = elementText(element);
    char *end = nullptr;
    const double number = strtod(text.c_str(), &end);
    if (end == text.c_str()) {
        m_findings.problem(element.GetLineNum(), name + ' ' + quotedText(text) + " is not a number: ignored");
        return false;
    }
    if (*end) {
        char reading[32];
        snprintf(reading, sizeof reading, "%.15g", number);
        m_findings.problem(element.GetLineNum(), name + ' ' + quotedText(text) + " reads as " + reading);
    }
    return true;
}

} // namespace

void checkEsBlocks(const XMLElement &root, const egl::DeviceProfile &profile, ProfileFindings &findings) {
    EsCheck check(profile, findings);
    for (auto *block = root.FirstChildElement("es"); block; block = block->NextSiblingElement("es"))
        check.checkBlock(*block);
}
