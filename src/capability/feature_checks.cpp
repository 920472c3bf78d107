#include "capability/feature_checks.h"

#include <utility>

namespace capability {

namespace {

void addIfMissing(std::vector<Feature> &missing, Feature feature, const FeatureBinding &binding) {
    if (!featureAvailable(binding, descriptorOf(feature))) missing.push_back(feature);
}

std::vector<Feature> joined(std::vector<Feature> first, const std::vector<Feature> &second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

} // namespace

#define CHECK(feature) addIfMissing(missing, Feature::feature, set.feature);

std::vector<Feature> missingBaseFeatures(const EsBaseFeatures &set) {
    std::vector<Feature> missing;
#include "capability/data/base_checks.def"
    return missing;
}

std::vector<Feature> missingEs30Features(const Es30Features &set) {
    std::vector<Feature> missing;
#include "capability/data/es30_checks.def"
    return joined(std::move(missing), missingBaseFeatures(set));
}

std::vector<Feature> missingEs31Features(const Es31Features &set) {
    std::vector<Feature> missing;
#include "capability/data/es31_checks.def"
    return joined(std::move(missing), missingEs30Features(set));
}

#undef CHECK

std::vector<Feature> missingEs20Features(const Es31Features &set) {
    std::vector<Feature> missing;
    addIfMissing(missing, Feature::shaderPrograms, set.shaderPrograms);
    addIfMissing(missing, Feature::uniforms, set.uniforms);
    return joined(std::move(missing), missingBaseFeatures(set));
}

std::vector<Feature> missingEs32Features(const Es31Features &set) {
    std::vector<Feature> missing;
    addIfMissing(missing, Feature::baseVertexOffset, set.baseVertexOffset);
    return joined(std::move(missing), missingEs31Features(set));
}

} // namespace capability
