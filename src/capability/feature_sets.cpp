#include "capability/feature_sets.h"

#include <sstream>
#include <string>

#include "foundation/gl_types.h"

namespace capability {

#define FIELD(feature)
#define BIND(feature) bindFeature(feature, view, library);

EsBaseFeatures::EsBaseFeatures(const DynamicLibrary &library) {
    bindFeature(get, {}, library);
    bindFeature(openGl, {}, library);
    const auto view = this->view();
#include "capability/data/es_base_features.def"
}

Es20Features::Es20Features(const DynamicLibrary &library) : EsBaseFeatures(library) {
    const auto view = this->view();
#include "capability/data/es20_features.def"
}

Es30Features::Es30Features(const DynamicLibrary &library) : Es20Features(library) {
    const auto view = this->view();
#include "capability/data/es30_features.def"
}

Es31Features::Es31Features(const DynamicLibrary &library) : Es30Features(library) {
    const auto view = this->view();
#include "capability/data/es31_features.def"
}

#undef BIND
#undef FIELD

GlVersion cachedGlVersion(EsBaseFeatures &set) {
    if (set.glVersion == noGlVersion) set.glVersion = parseGlVersion(set.view().string(GL_VERSION));
    return set.glVersion;
}

GlslVersion cachedGlslVersion(EsBaseFeatures &set) {
    if (set.glslVersion == noGlslVersion)
        set.glslVersion = parseGlslVersion(set.view().string(GL_SHADING_LANGUAGE_VERSION));
    return set.glslVersion;
}

std::vector<HostExtension> hostExtensionIds(EsBaseFeatures &set) {
    std::vector<HostExtension> ids;
    const auto append = [&](const char *name) {
        if (const auto id = hostExtensionFromName(name)) ids.push_back(id);
    };
    const auto view = set.view();
    if (view.listsExtensions(cachedGlVersion(set))) {
        const int32_t count = view.listedExtensionCount();
        for (int32_t index = 0; index < count; ++index)
            append(view.listedExtension(index));
        return ids;
    }
    const char *text = view.string(GL_EXTENSIONS);
    std::istringstream words(text ? text : "");
    for (std::string word; words >> word;)
        append(word.c_str());
    return ids;
}

} // namespace capability
