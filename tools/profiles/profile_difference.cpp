#include "tools/profiles/profile_difference.h"

#include <EGL/egl.h>
#include <tinyxml2.h>

#include <algorithm>
#include <cstdlib>
#include <map>
#include <optional>

#include "foundation/attribute_list.h"
#include "profiles/egl_names.h"
#include "profiles/profile_reader.h"
#include "tools/profiles/es_blocks.h"
#include "tools/profiles/print_profile.h"

namespace {

using Values = std::map<std::string, std::string>;

std::vector<ValueDifference> differencesOf(const Values &a, const Values &b) {
    Values all = a;
    all.insert(b.begin(), b.end());
    std::vector<ValueDifference> list;
    const auto in = [](const Values &values, const std::string &name) {
        const auto found = values.find(name);
        return found == values.end() ? std::string() : found->second;
    };
    for (const auto &[name, value] : all)
        if (in(a, name) != in(b, name)) list.push_back({name, in(a, name), in(b, name)});
    return list;
}

// Keeps the order of the names in a and in b.
OnlyIn onlyIn(const std::vector<std::string> &a, const std::vector<std::string> &b) {
    const auto without = [](const std::vector<std::string> &names, const std::vector<std::string> &others) {
        std::vector<std::string> rest;
        std::ranges::copy_if(names, std::back_inserter(rest),
                             [&](const std::string &name) { return std::ranges::find(others, name) == others.end(); });
        return rest;
    };
    return {without(a, b), without(b, a)};
}

Values valuesOf(const egl::Config &config) {
    Values values;
    const std::vector<int32_t> list = config.toAttributeList();
    for (const auto &pair : AttributeList(list.data()))
        if (pair.name != EGL_CONFIG_ID) values[egl::attributeName(pair.name)] = egl::valueText(pair.name, pair.value);
    return values;
}

ConfigDifference compareConfigs(const egl::DeviceProfile &a, const egl::DeviceProfile &b) {
    ConfigDifference result;
    std::vector<egl::Config> restA(a.configs.begin(), a.configs.end()), restB(b.configs.begin(), b.configs.end());
    const auto idOf = [](const egl::Config &config) { return config.attributeOr0(EGL_CONFIG_ID); };
    const auto match = [&](auto &&isMatch, auto &&take) {
        std::erase_if(restA, [&](const egl::Config &one) {
            const auto other = std::ranges::find_if(restB, [&](const egl::Config &two) { return isMatch(one, two); });
            if (other == restB.end()) return false;
            take(one, *other);
            restB.erase(other);
            return true;
        });
    };
    const auto haveSameId = [&](const egl::Config &one, const egl::Config &two) { return idOf(one) == idOf(two); };
    const auto haveSameValues = [](const egl::Config &one, const egl::Config &two) {
        return valuesOf(one) == valuesOf(two);
    };
    match([](const egl::Config &one, const egl::Config &two) { return one == two; },
          [&](const egl::Config &, const egl::Config &) { ++result.sameCount; });
    match(haveSameValues, [&](const egl::Config &one, const egl::Config &two) {
        result.renumbered.push_back({idOf(one), idOf(two)});
    });
    match(haveSameId, [&](const egl::Config &one, const egl::Config &two) {
        result.changed.push_back({idOf(one), differencesOf(valuesOf(one), valuesOf(two))});
    });
    result.onlyInA = restA;
    result.onlyInB = restB;
    return result;
}

std::vector<std::string> versionNames(const egl::DeviceProfile &profile) {
    std::vector<std::string> names;
    for (const capability::EsVersion version : profile.esVersions)
        names.emplace_back(versionName(version));
    return names;
}

// The first block of each version, which back ends read.
std::map<capability::EsVersion, EsBlockText> blocksOf(const tinyxml2::XMLElement &root) {
    std::map<capability::EsVersion, EsBlockText> blocks;
    for (const EsBlockText &block : readEsBlocks(root))
        if (const auto token = egl::findVersionToken(atoi(block.version.c_str()))) blocks.insert({*token, block});
    return blocks;
}

// As back ends report it.
std::vector<std::string> extensionNames(const EsBlockText &block) {
    std::vector<std::string> names = block.extensions;
    for (std::string &name : names)
        if (!name.starts_with("GL_")) name.insert(0, "GL_");
    return names;
}

void compareLimits(const EsBlockText &a, const EsBlockText &b, EsDifference &result) {
    std::map<std::string, std::pair<std::vector<std::string>, std::vector<std::string>>> limits;
    for (const auto &[name, values] : a.limits)
        limits[name].first = values;
    for (const auto &[name, values] : b.limits)
        limits[name].second = values;
    for (const auto &[name, values] : limits) {
        const OnlyIn difference = onlyIn(values.first, values.second);
        if (difference.isNone()) continue;
        const auto valueIn = [](const auto &list) { return list.empty() ? std::string() : list.front(); };
        if (values.first.size() > 1 || values.second.size() > 1)
            result.lists.emplace_back(name, difference);
        else
            result.limits.push_back({name, valueIn(values.first), valueIn(values.second)});
    }
}

Values identityOf(const tinyxml2::XMLElement &root) {
    Values values;
    for (const char *name : {"vendor", "renderer"})
        if (const auto *element = root.FirstChildElement(name)) values[name] = elementText(*element);
    const auto *egl = root.FirstChildElement("egl");
    if (egl && egl->BoolAttribute("host_only")) values["host_only"] = "true";
    return values;
}

} // namespace

ProfileDifference compareProfiles(const NamedProfile &a, const NamedProfile &b) {
    tinyxml2::XMLDocument documentA, documentB;
    documentA.Parse(a.text.data(), a.text.size());
    documentB.Parse(b.text.data(), b.text.size());
    const auto &rootA = *documentA.FirstChildElement("profile"), &rootB = *documentB.FirstChildElement("profile");
    ProfileDifference result{a.name, b.name, differencesOf(identityOf(rootA), identityOf(rootB)), {}, {}, {}};
    result.esVersions = onlyIn(versionNames(a.profile), versionNames(b.profile));
    result.configs = compareConfigs(a.profile, b.profile);
    const auto blocksA = blocksOf(rootA), blocksB = blocksOf(rootB);
    for (const auto &[version, block] : blocksA) {
        const auto other = blocksB.find(version);
        if (other == blocksB.end()) continue;
        EsDifference es{version, onlyIn(extensionNames(block), extensionNames(other->second)), {}, {}};
        compareLimits(block, other->second, es);
        if (!es.isNone()) result.es.push_back(es);
    }
    return result;
}
