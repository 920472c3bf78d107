#include "tools/monitor/received_report.h"

#include <cstring>
#include <optional>

#include "capability/extension_catalogue.h"
#include "capability/format_system_report.h"

using namespace capability;
using ui::messages::Message;

namespace {

template <size_t size>
std::string textOf(const char (&field)[size]) {
    return {field, strnlen(field, size)};
}

template <size_t size>
std::vector<HostExtension> listOf(const uint32_t (&field)[size]) {
    std::vector<HostExtension> extensions;
    for (size_t index = 0; index < size && field[index] != 0; ++index)
        extensions.push_back(static_cast<HostExtension>(field[index]));
    return extensions;
}

std::optional<ReportRecord> recordOf(const Message &message) {
    switch (message.header.type) {
    case ZV_SYSTEM_REPORT_GL_VERSION:
        return GlVersionRecord{static_cast<GlVersion>(message.glVersion.glVersion)};
    case ZV_SYSTEM_REPORT_EXTENSION:
        return ExtensionRecord{static_cast<HostExtension>(message.extension.extension),
                               message.extension.isAvailable != 0};
    case ZV_SYSTEM_REPORT_FEATURE:
        return FeatureRecord{textOf(message.feature.name).c_str(), message.feature.isAvailable != 0};
    case ZV_SYSTEM_REPORT_FEATURE_ALTERNATIVE:
        return FeatureAlternativeRecord{textOf(message.featureAlternative.name).c_str(),
                                        static_cast<GlVersion>(message.featureAlternative.minVersion),
                                        listOf(message.featureAlternative.extensions)};
    case ZV_SYSTEM_REPORT_ES_REQUIREMENT:
        return EsRequirementRecord{message.esRequirement.section, textOf(message.esRequirement.feature).c_str()};
    case ZV_SYSTEM_REPORT_ES_EXTENSION_REQUIREMENT:
        return EsExtensionRequirementRecord{static_cast<EsExtension>(message.esExtensionRequirement.esExtension),
                                            textOf(message.esExtensionRequirement.feature).c_str()};
    default:
        return std::nullopt;
    }
}

} // namespace

void ReceivedReport::take(const Message &message) {
    if (m_taken == mostRecords) return;
    ++m_taken;
    if (const auto record = recordOf(message)) SystemReportFiller(m_report).receive(*record);
}

std::string ReceivedReport::text() const {
    return formatSystemReport(m_report, false);
}
