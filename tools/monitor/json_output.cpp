// One object a record, on a line of its own.
#include <chrono>
#include <cstdio>

#include "tools/command/json.h"
#include "tools/monitor/output.h"
#include "tools/monitor/record_fields.h"

using ui::messages::Message;

namespace {

// A number that stands for nothing stays a number.
std::string catalogueText(FieldKind kind, uint32_t value) {
    const std::string name = valueName(kind, value);
    return name.empty() ? std::to_string(value) : jsonText(name);
}

std::string valueText(const Message &message, const Field &field) {
    switch (field.kind) {
    case FieldKind::Unsigned:
    case FieldKind::Unsigned64:
        return std::to_string(numberAt(message, field));
    case FieldKind::Signed:
        return std::to_string(signedAt(message, field));
    case FieldKind::Flag:
        return numberAt(message, field) ? "true" : "false";
    case FieldKind::Text:
        return jsonText(textAt(message, field));
    case FieldKind::List:
    case FieldKind::HostExtensionList:
        return jsonList("[]", listAt(message, field), [&](uint32_t value) { return catalogueText(field.kind, value); });
    default:
        return catalogueText(field.kind, static_cast<uint32_t>(numberAt(message, field)));
    }
}

// In UTC, to the millisecond: "2031-12-24T18:00:00.000Z".
std::string timeText() {
    using namespace std::chrono;
    const auto now = floor<milliseconds>(system_clock::now());
    const time_t seconds = system_clock::to_time_t(now);
    tm parts{};
    gmtime_r(&seconds, &parts);
    char text[32];
    const size_t length = strftime(text, sizeof text, "%FT%T", &parts);
    snprintf(text + length, sizeof text - length, ".%03dZ", static_cast<int>(now.time_since_epoch().count() % 1000));
    return text;
}

class JsonOutput final : public MonitorOutput {
public:
    void listening(const std::string &, bool) override {}

    void record(const MonitoredApplication &application, const Message &message) override {
        const uint32_t type = message.header.type;
        const RecordKind *kind = recordKind(type);
        std::string line = head(application, recordName(type));
        if (hasFrame(message)) line += ",\"frame\":" + std::to_string(message.header.frameStamp);
        if (!kind) line += ",\"number\":" + std::to_string(type);
        for (const Field &field : kind ? kind->fields : std::vector<Field>{})
            line += std::string(",\"") + field.name + "\":" + valueText(message, field);
        puts((line + '}').c_str());
    }

    // The one line that is no record: the connection has ended.
    void ended(const MonitoredApplication &application) override { puts((head(application, endedName) + '}').c_str()); }

    // Standard output is for the objects alone.
    void notice(const std::string &text) override { fprintf(stderr, "%s\n", text.c_str()); }

private:
    static std::string head(const MonitoredApplication &application, const std::string &type) {
        return "{\"time\":\"" + timeText() + "\",\"pid\":" + std::to_string(application.processNumber()) +
               ",\"command\":" + jsonText(application.commandName()) + ",\"type\":\"" + type + '"';
    }
};

} // namespace

std::unique_ptr<MonitorOutput> makeJsonOutput() {
    return std::make_unique<JsonOutput>();
}
