// Selects the records that a monitor shows.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/monitor/application.h"

struct RecordFilter {
    uint32_t leastLevel = ZV_LOG_INFO;  // of log lines
    std::vector<std::string> processes; // numbers, or command names as the system reports them; empty for all
    // Names of record types, or prefixes such as "log" for "log_info" and "log_error"; empty for all.
    std::vector<std::string> types;

    [[nodiscard]] bool follows(const MonitoredApplication &application) const;
    [[nodiscard]] bool shows(const MonitoredApplication &application, uint32_t type) const;
    [[nodiscard]] bool showsEnd(const MonitoredApplication &application) const;
};

// Whether RecordFilter::types accepts the name.
[[nodiscard]] bool isRecordName(const std::string &name);
