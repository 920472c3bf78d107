#include "capability/feature_texts.h"

#include <algorithm>

namespace capability {

std::string describeAlternative(const FeatureAlternative &alternative) {
    std::string text;
    const bool hasVersion = alternative.minVersion > gl1_0;
    if (hasVersion) text = std::string("OpenGL version must be at least ") + glVersionName(alternative.minVersion);
    if (alternative.extensions.empty()) return text;

    text += hasVersion ? " and t" : "T";
    text += "he following extensions must be supported:";
    for (const char *name : alternative.extensions)
        text += std::string(" '") + name + "'";
    return text;
}

std::string describeAlternatives(std::span<const FeatureAlternative> alternatives) {
    std::string text;
    for (const auto &alternative : alternatives)
        text += describeAlternative(alternative) + "\nOR\n";
    return text;
}

std::string describeRequirements(std::span<const FeatureAlternative> alternatives, uint32_t variant) {
    const auto found = std::ranges::find(alternatives, variant, &FeatureAlternative::variant);
    // 0 describes all, so the core form cannot be described on its own.
    if (variant == 0 || found == alternatives.end()) return describeAlternatives(alternatives);
    return describeAlternative(*found);
}

std::string describeFeatureFailure(const FeatureDescriptor &descriptor, uint32_t variant) {
    return std::string("This feature cannot be emulated on the host system: '") + descriptor.name + "'\n" +
           describeRequirements(descriptor.alternatives, variant);
}

} // namespace capability
