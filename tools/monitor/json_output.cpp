// Prints one object per record, each on a line of its own.
#include <cstdio>

#include "tools/monitor/json_record.h"
#include "tools/monitor/output.h"

namespace {

class JsonOutput final : public MonitorOutput {
public:
    void listening(const std::string &, bool) override {}

    void record(const MonitoredApplication &application, const ui::messages::Message &message) override {
        puts(jsonRecord(application, message).c_str());
    }

    void ended(const MonitoredApplication &application) override { puts(jsonEnd(application).c_str()); }

    // Standard output contains only the objects.
    void notice(const std::string &text) override { fprintf(stderr, "%s\n", text.c_str()); }
};

} // namespace

std::unique_ptr<MonitorOutput> makeJsonOutput() {
    return std::make_unique<JsonOutput>();
}
