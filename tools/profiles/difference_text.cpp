#include <EGL/egl.h>

#include "tools/profiles/print_profile.h"
#include "tools/profiles/profile_difference.h"

namespace {

std::string listText(const std::vector<std::string> &names) {
    std::string text;
    for (const std::string &name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

std::string valueLine(const ValueDifference &value) {
    const auto orNone = [](const std::string &text) { return text.empty() ? std::string("none") : text; };
    return value.name + ": " + orNone(value.a) + " in A, " + orNone(value.b) + " in B";
}

std::string onlyText(const OnlyIn &names, const std::string &head) {
    std::string text;
    if (!names.a.empty()) text += head + "only in A: " + listText(names.a) + '\n';
    if (!names.b.empty()) text += head + "only in B: " + listText(names.b) + '\n';
    return text;
}

std::string summary(const egl::Config &config) {
    const auto value = [&](int32_t attribute) { return ' ' + std::to_string(config.attributeOr0(attribute)); };
    return "config" + value(EGL_CONFIG_ID) + ": RGBA" + value(EGL_RED_SIZE) + value(EGL_GREEN_SIZE) +
           value(EGL_BLUE_SIZE) + value(EGL_ALPHA_SIZE) + ", depth" + value(EGL_DEPTH_SIZE) + ", stencil" +
           value(EGL_STENCIL_SIZE) + ", samples" + value(EGL_SAMPLES);
}

// The ids of all configs with the same differences; empty if an earlier config has them too.
std::string idsOfSame(const std::vector<ConfigDifference::Changed> &changed, size_t index) {
    std::string ids;
    for (size_t other = 0; other < changed.size(); ++other) {
        if (changed[other].attributes != changed[index].attributes) continue;
        if (other < index) return {};
        ids += (ids.empty() ? "" : ", ") + std::to_string(changed[other].id);
    }
    return ids;
}

std::string configsText(const ConfigDifference &configs) {
    if (configs.isNone()) return {};
    std::string text = "\nconfigs: " + std::to_string(configs.sameCount) + " the same\n";
    for (size_t index = 0; index < configs.changed.size(); ++index) {
        const auto &attributes = configs.changed[index].attributes;
        const std::string ids = idsOfSame(configs.changed, index);
        if (ids.empty()) continue;
        text += "  config " + ids + '\n';
        for (const ValueDifference &attribute : attributes)
            text += "    " + valueLine(attribute) + '\n';
    }
    for (const auto &pair : configs.renumbered)
        text += "  config " + std::to_string(pair.a) + " of A is config " + std::to_string(pair.b) + " of B\n";
    for (const egl::Config &config : configs.onlyInA)
        text += "  only in A: " + summary(config) + '\n';
    for (const egl::Config &config : configs.onlyInB)
        text += "  only in B: " + summary(config) + '\n';
    return text;
}

std::string esText(const EsDifference &es) {
    const std::string version = versionName(es.version);
    std::string text;
    if (!es.extensions.isNone()) {
        text += "\nes " + version + ", extensions:\n";
        for (const std::string &name : es.extensions.a)
            text += "  only in A: " + name + '\n';
        for (const std::string &name : es.extensions.b)
            text += "  only in B: " + name + '\n';
    }
    if (!es.limits.empty() || !es.lists.empty()) text += "\nes " + version + ", limits:\n";
    for (const ValueDifference &limit : es.limits)
        text += "  " + valueLine(limit) + '\n';
    for (const auto &[name, values] : es.lists)
        text += onlyText(values, "  " + name + ' ');
    return text;
}

} // namespace

std::string differenceAsText(const ProfileDifference &difference) {
    std::string text = "A: " + difference.a + "\nB: " + difference.b + '\n';
    if (difference.isNone()) return text + "\nno difference\n";
    if (!difference.identity.empty()) text += '\n';
    for (const ValueDifference &value : difference.identity)
        text += valueLine(value) + '\n';
    if (!difference.esVersions.isNone()) text += '\n' + onlyText(difference.esVersions, "es versions ");
    text += configsText(difference.configs);
    for (const EsDifference &es : difference.es)
        text += esText(es);
    return text;
}
