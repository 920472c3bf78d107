#include "tools/profiles/check_profile.h"

#include <EGL/egl.h>
#include <tinyxml2.h>

#include <algorithm>
#include <charconv>
#include <map>
#include <set>

#include "profiles/config_maker.h"
#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/profiles/check_es_blocks.h"
#include "tools/profiles/es_blocks.h"

namespace {

using tinyxml2::XMLElement;

std::string textOf(const XMLElement &element) {
    const char *text = element.GetText();
    return text ? text : "";
}

// A 32-bit integer with no other text.
bool isNumber(const char *text) {
    if (!text) return false;
    int32_t value = 0;
    const char *end = text + std::string_view(text).size();
    const auto result = std::from_chars(text, end, value);
    return result.ec == std::errc() && result.ptr == end;
}

bool isChildOf(std::string_view container, std::string_view name) {
    const egl::ConfigElementRule *const group = egl::findElementRule(container);
    return group && std::ranges::find(group->children, name) != group->children.end();
}

// The names of the elements whose attributes have no default value.
std::string missingSizes(const egl::Config &config) {
    std::string list;
    for (const char *name : {"red_size", "green_size", "blue_size", "alpha_size", "buffer_size", "depth_size",
                             "stencil_size", "samples", "sample_buffers", "level"}) {
        int32_t value = 0;
        if (!config.getAttribute(egl::findElementRule(name)->attribute, &value))
            list += (list.empty() ? "" : ", ") + std::string(name);
    }
    return list;
}

class Check {
public:
    Check(std::string_view text, const std::string &fileName) : m_text(text), m_fileName(fileName) {}

    ProfileFindings run();

private:
    void problem(int line, const std::string &text) { m_findings.problem(line, text); }
    void note(int line, const std::string &text) { m_findings.note(line, text); }

    void checkRoot(const XMLElement &root);
    void checkEgl(const XMLElement &egl);
    void checkConfig(const XMLElement &config);
    // seen: for each element read so far, the place where it was last read.
    void checkDescendants(const XMLElement &parent, const std::string &container, std::map<std::string, int> &seen);
    void checkValue(const egl::ConfigElementRule &rule, const XMLElement &element);
    void checkResult(const XMLElement &config);

    std::string_view m_text;
    const std::string &m_fileName;
    std::set<int32_t> m_ids;
    ProfileFindings m_findings;
};

ProfileFindings Check::run() {
    tinyxml2::XMLDocument document;
    document.Parse(m_text.data(), m_text.size());
    const XMLElement *root = document.FirstChildElement("profile");
    if (document.Error()) {
        problem(std::max(document.ErrorLineNum(), 1), std::string("not well-formed XML: ") + document.ErrorStr());
    } else if (!root) {
        problem(1, "the root element is not profile: the file cannot be loaded");
    } else {
        checkRoot(*root);
    }
    return std::move(m_findings);
}

void Check::checkRoot(const XMLElement &root) {
    if (!egl::findEmbeddedProfile(m_fileName).empty())
        problem(root.GetLineNum(),
                "a built-in profile has the name " + quotedText(m_fileName) + " and hides this file");
    if (const auto *device = root.FirstChildElement("device"); device && textOf(*device) != m_fileName) {
        note(device->GetLineNum(),
             "device names built-in profiles only: this file is chosen as " + quotedText(m_fileName));
    }
    for (auto *other = root.NextSiblingElement(); other; other = other->NextSiblingElement())
        problem(other->GetLineNum(), std::string(other->Name()) + " behind the profile is ignored");

    const XMLElement *egl = root.FirstChildElement("egl");
    if (!egl) problem(root.GetLineNum(), "profile has no egl: the file cannot be loaded");
    for (auto *child = root.FirstChildElement(); child; child = child->NextSiblingElement()) {
        const std::string_view name = child->Name();
        if (name == "egl" && child != egl) {
            problem(child->GetLineNum(), "only the first egl is read: this one is ignored");
        } else if (name != "egl" && name != "es" && name != "device" && name != "renderer" && name != "vendor") {
            problem(child->GetLineNum(), std::string(name) + " is not an element of profile: ignored");
        }
    }
    if (!egl) return;
    checkEgl(*egl);
    egl::DeviceProfile profile;
    if (readDeviceProfile(profile, m_text, CKZRTString(m_fileName.c_str()))) checkEsBlocks(root, profile, m_findings);
}

void Check::checkEgl(const XMLElement &egl) {
    for (auto *child = egl.FirstChildElement(); child; child = child->NextSiblingElement()) {
        if (std::string_view(child->Name()) == "config")
            checkConfig(*child);
        else if (std::string_view(child->Name()) != capturedElement)
            problem(child->GetLineNum(), std::string(child->Name()) + " is not an element of egl: ignored");
    }
    if (!m_ids.contains(1)) problem(egl.GetLineNum(), "no config has the id 1: one with default values is added");
}

void Check::checkConfig(const XMLElement &config) {
    const int line = config.GetLineNum();
    const char *idText = config.Attribute("id");
    const int32_t id = config.IntAttribute("id");
    if (!idText)
        problem(line, "config has no id: it reads as 0");
    else if (!isNumber(idText))
        problem(line, "config id " + quotedText(idText) + " reads as " + std::to_string(id));
    if (!m_ids.insert(id).second)
        problem(line, "config id " + std::to_string(id) + " is already used: this config is ignored");

    std::map<std::string, int> seen;
    checkDescendants(config, "", seen);
    checkResult(config);
}

void Check::checkDescendants(const XMLElement &parent, const std::string &container, std::map<std::string, int> &seen) {
    for (auto *child = parent.FirstChildElement(); child; child = child->NextSiblingElement()) {
        const std::string name = child->Name();
        const egl::ConfigElementRule *const rule = egl::findElementRule(name);
        const int line = child->GetLineNum();
        if (rule && rule->reader) {
            if (!container.empty()) problem(line, name + " inside " + container + " is read as the config's own");
            const auto [last, isFirst] = seen.insert({name, line});
            if (!isFirst && rule->reader != egl::readBits) {
                problem(last->second, name + " occurs again below, and the last one is used");
                last->second = line;
            }
            checkValue(*rule, *child);
        } else if (rule) {
            note(line, name + " is never read: the library's own values apply");
        } else if (name != capturedElement && container != capturedElement && !isChildOf(container, name)) {
            problem(line, name + " is not an element of " + (container.empty() ? "config" : container) + ": ignored");
        }
        checkDescendants(*child, name, seen);
    }
}

void Check::checkValue(const egl::ConfigElementRule &rule, const XMLElement &element) {
    const std::string text = textOf(element);
    egl::Config config;
    config.setAttribute(rule.attribute, 0);
    rule.reader(rule, element, config);
    const int32_t value = config.attributeOr0(rule.attribute);

    std::string reading;
    if (rule.reader == egl::readInteger && !isNumber(text.c_str())) reading = "reads as " + std::to_string(value);
    if (rule.reader == egl::readBoolean && value == 0 && text != "EGL_FALSE" && text != "0")
        reading = "reads as EGL_FALSE: only the text EGL_TRUE is true";
    if (rule.reader == egl::readBits && value == 0) reading = "is not a known bit: ignored";
    if (!reading.empty())
        problem(element.GetLineNum(), std::string(rule.name) + " " + quotedText(text) + " " + reading);
}

void Check::checkResult(const XMLElement &element) {
    const int line = element.GetLineNum();
    egl::Config config;
    egl::ConfigMaker maker(config);
    element.Accept(&maker);
    if (config.attributeOr0(EGL_RENDERABLE_TYPE) == 0)
        problem(line, "config has no valid renderable_type: no context can be created for it");
    if (config.attributeOr0(EGL_SURFACE_TYPE) == 0)
        problem(line, "config has no valid surface_type: it matches no request for a surface");
    const std::string missing = missingSizes(config);
    if (!missing.empty()) problem(line, "config has no " + missing + ": eglGetConfigAttrib fails for it");
    const int32_t samples = config.attributeOr0(EGL_SAMPLES), buffers = config.attributeOr0(EGL_SAMPLE_BUFFERS);
    if (samples > 0 && buffers == 0)
        problem(line, "config has samples " + std::to_string(samples) + " and no sample_buffers");
    if (samples == 0 && buffers > 0)
        problem(line, "config has sample_buffers " + std::to_string(buffers) + " and no samples");
}

} // namespace

ProfileFindings checkProfile(std::string_view text, const std::string &fileName) {
    return Check(text, fileName).run();
}
