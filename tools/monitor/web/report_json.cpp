#include "tools/monitor/web/report_json.h"

#include <algorithm>

#include <nlohmann/json.hpp>

#include "capability/extension_catalogue.h"
#include "capability/format_system_report.h"
#include "capability/versions.h"

using namespace capability;
using Json = nlohmann::json;

namespace {

struct Section {
    int32_t key;
    const char *name;
};

constexpr Section sections[] = {
#define REPORT_SECTION(key, name) {key, name},
#include "capability/data/report_sections.def"
#undef REPORT_SECTION
};

bool asksFor(const std::vector<std::string> &features, const std::string &name) {
    return std::ranges::find(features, name) != features.end();
}

// Shortens "OpenGL ES 3.0 core support" to the name without "support".
std::string shortName(std::string name) {
    constexpr std::string_view end = " support";
    if (name.ends_with(end)) name.resize(name.size() - end.size());
    return name;
}

Json whatAsksFor(const SystemReport &report, const std::string &feature) {
    Json names = Json::array();
    for (const auto &[key, name] : sections) {
        const auto found = report.esRequirements.find(key);
        if (found != report.esRequirements.end() && asksFor(found->second, feature)) names.push_back(shortName(name));
    }
    for (const auto &[extension, features] : report.esExtensionRequirements) {
        if (asksFor(features, feature)) names.push_back(esExtensionName(extension, true));
    }
    return names;
}

Json requirementsOf(const SystemReport::Feature &feature) {
    Json texts = Json::array();
    for (const auto &alternative : feature.alternatives) {
        std::string text = formatAlternative(alternative);
        text.pop_back(); // the line feed
        texts.push_back(text);
    }
    return texts;
}

} // namespace

std::string jsonOf(const SystemReport &report) {
    Json object{{"openGL", glVersionName(report.glVersion)}, {"sections", Json::array()}, {"features", Json::array()}};
    // A version with missing features excludes every higher one too.
    bool isSupported = true;
    for (const auto &[key, name] : sections) {
        isSupported = isSupported && buildSection(report, report.esRequirements, key, name).missing.empty();
        object["sections"].push_back({{"name", shortName(name)}, {"isSupported", isSupported}});
    }
    for (const auto &[name, feature] : report.features) {
        object["features"].push_back({{"name", name},
                                      {"isAvailable", feature->available},
                                      {"requires", requirementsOf(*feature)},
                                      {"holdsBack", whatAsksFor(report, name)}});
    }
    return object.dump(-1, ' ', false, Json::error_handler_t::replace);
}
