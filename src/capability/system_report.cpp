#include "capability/system_report.h"

#include <algorithm>
#include <utility>

namespace capability {

namespace {

struct Filling {
    SystemReport &report;

    void operator()(const GlVersionRecord &record) const { report.glVersion = record.version; }

    void operator()(const ExtensionRecord &record) const { report.extensions[record.extension] = record.isPresent; }

    void operator()(const FeatureRecord &record) const {
        const auto &name = record.feature.str();
        // Later records of the same name are ignored.
        if (report.features.contains(name)) return;
        report.features[name] =
            std::make_shared<SystemReport::Feature>(SystemReport::Feature{name, record.isAvailable, {}});
    }

    void operator()(const FeatureAlternativeRecord &record) const {
        const auto feature = report.features.find(record.feature.str());
        if (feature == report.features.end()) return;
        const auto &ids = record.extensions;
        const auto end = std::ranges::find(ids, 0);
        feature->second->alternatives.push_back({record.minVersion, {ids.begin(), end}});
    }

    void operator()(const EsRequirementRecord &record) const {
        report.esRequirements[record.section].push_back(record.feature.str());
    }

    void operator()(const EsExtensionRequirementRecord &record) const {
        report.esExtensionRequirements[record.extension].push_back(record.feature.str());
    }

    void operator()(const EndRecord &) const {}
};

} // namespace

SystemReportFiller::SystemReportFiller(SystemReport &report, Forward forward)
    : m_report(report), m_forward(std::move(forward)) {}

void SystemReportFiller::receive(const ReportRecord &record) {
    if (m_closed) return;
    if (m_forward) m_forward(record);
    std::visit(Filling{m_report}, record);
    m_closed = std::holds_alternative<EndRecord>(record);
}

} // namespace capability
