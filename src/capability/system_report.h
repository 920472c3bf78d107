// The host's capabilities for each OpenGL ES version, for information only: no decision depends on it. Filled once, on
// one thread, and only read after that.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "capability/report_record.h"

namespace capability {

struct SystemReport {
    struct Alternative {
        GlVersion minVersion;
        std::vector<HostExtension> extensions;
    };

    // Shared by the report and the sections that are built from it.
    struct Feature {
        std::string name;
        bool available;
        std::vector<Alternative> alternatives;
    };

    GlVersion glVersion = noGlVersion;
    std::map<HostExtension, bool> extensions;
    std::map<std::string, std::shared_ptr<Feature>> features;
    // By section and by extension; repeats are kept.
    std::map<int32_t, std::vector<std::string>> esRequirements;
    std::map<int32_t, std::vector<std::string>> esExtensionRequirements;
};

class SystemReportReceiver {
public:
    virtual ~SystemReportReceiver() = default;
    virtual void receive(const ReportRecord &record) = 0;
};

// Fills a report and passes every record on. Used for one collection; accepts nothing after the end record.
class SystemReportFiller : public SystemReportReceiver {
public:
    using Forward = std::function<void(const ReportRecord &record)>;

    // forward may be empty. It must not block.
    explicit SystemReportFiller(SystemReport &report, Forward forward = {});
    void receive(const ReportRecord &record) override;

private:
    SystemReport &m_report;
    Forward m_forward;
    bool m_closed = false;
};

} // namespace capability
