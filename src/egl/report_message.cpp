#include "egl/report_message.h"

using namespace capability;
using namespace ui::messages;

namespace egl {

namespace {

struct Build {
    Message operator()(const GlVersionRecord &record) const { return systemReportGlVersion(record.version); }
    Message operator()(const ExtensionRecord &record) const {
        return systemReportExtension(record.extension, record.isPresent);
    }
    Message operator()(const FeatureRecord &record) const {
        return systemReportFeature(record.feature.str(), record.isAvailable);
    }
    Message operator()(const FeatureAlternativeRecord &record) const {
        const std::vector<uint32_t> extensions(record.extensions.begin(), record.extensions.end());
        return systemReportFeatureAlternative(record.feature.str(), record.minVersion, extensions);
    }
    Message operator()(const EsRequirementRecord &record) const {
        return systemReportEsRequirement(record.section, record.feature.str());
    }
    Message operator()(const EsExtensionRequirementRecord &record) const {
        return systemReportEsExtensionRequirement(record.extension, record.feature.str());
    }
    Message operator()(const EndRecord &) const { return systemReportEnd(); }
};

} // namespace

Message reportMessage(const ReportRecord &record) {
    return std::visit(Build{}, record);
}

} // namespace egl
