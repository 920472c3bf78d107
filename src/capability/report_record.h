// The records of the system report, each one fact about the host, in the form in which they are sent.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <variant>
#include <vector>

#include "capability/extension_catalogue.h"
#include "capability/versions.h"

namespace capability {

// A text in a record: at most 511 characters, the rest is cut silently.
class ReportText {
public:
    ReportText(const char *text) : m_text(text, strnlen(text, maxLength)) {}
    [[nodiscard]] const std::string &str() const { return m_text; }
    bool operator==(const ReportText &) const = default;

private:
    static constexpr size_t maxLength = 511;
    std::string m_text;
};

struct GlVersionRecord {
    GlVersion version;
};

struct ExtensionRecord {
    HostExtension extension;
    bool isPresent;
};

struct FeatureRecord {
    ReportText feature;
    bool isAvailable;
};

struct FeatureAlternativeRecord {
    ReportText feature;
    GlVersion minVersion;
    std::vector<HostExtension> extensions; // ended by a 0 for the receiver
};

struct EsRequirementRecord {
    int32_t section; // 0 or an EsVersion
    ReportText feature;
};

struct EsExtensionRequirementRecord {
    EsExtension extension;
    ReportText feature;
};

struct EndRecord {};

using ReportRecord = std::variant<GlVersionRecord, ExtensionRecord, FeatureRecord, FeatureAlternativeRecord,
                                  EsRequirementRecord, EsExtensionRequirementRecord, EndRecord>;

} // namespace capability
