#include "tools/monitor/record_filter.h"

#include <algorithm>

#include "tools/monitor/record_fields.h"

namespace {

bool isOf(const std::string &record, const std::string &name) {
    return record == name || record.starts_with(name + '_');
}

bool includes(const std::vector<std::string> &names, const std::string &record) {
    return names.empty() || std::ranges::any_of(names, [&](const auto &name) { return isOf(record, name); });
}

} // namespace

bool RecordFilter::follows(const MonitoredApplication &application) const {
    constexpr size_t longestName = 15; // the system truncates names
    return processes.empty() || std::ranges::any_of(processes, [&](const std::string &process) {
               return process == std::to_string(application.processNumber()) ||
                      process.substr(0, longestName) == application.commandName();
           });
}

bool RecordFilter::shows(const MonitoredApplication &application, uint32_t type) const {
    const bool isLogLine = type >= ZV_LOG_INFO && type <= ZV_LOG_ERROR;
    return follows(application) && (!isLogLine || type >= leastLevel) && includes(types, recordName(type));
}

bool RecordFilter::showsEnd(const MonitoredApplication &application) const {
    return follows(application) && includes(types, endedName);
}

bool isRecordName(const std::string &name) {
    return std::ranges::any_of(recordNames(), [&](const std::string &record) { return isOf(record, name); });
}
