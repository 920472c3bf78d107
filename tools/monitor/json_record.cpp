#include "tools/monitor/json_record.h"

#include "tools/command/json.h"
#include "tools/monitor/record_fields.h"
#include "tools/monitor/time_text.h"

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

// The time is in UTC: "2031-12-24T18:00:00.000Z".
std::string head(const MonitoredApplication &application, const std::string &type) {
    return "{\"time\":\"" + timeTextNow(gmtime_r, "%FT%T") +
           "Z\",\"pid\":" + std::to_string(application.processNumber()) +
           ",\"command\":" + jsonText(application.commandName()) + ",\"type\":\"" + type + '"';
}

} // namespace

std::string jsonRecord(const MonitoredApplication &application, const Message &message) {
    const uint32_t type = message.header.type;
    const RecordKind *kind = recordKind(type);
    std::string line = head(application, recordName(type));
    if (hasFrame(message)) line += ",\"frame\":" + std::to_string(message.header.frameStamp);
    if (!kind) line += ",\"number\":" + std::to_string(type);
    for (const Field &field : kind ? kind->fields : std::vector<Field>{})
        line += std::string(",\"") + field.name + "\":" + valueText(message, field);
    return line + '}';
}

std::string jsonEnd(const MonitoredApplication &application) {
    return head(application, endedName) + '}';
}
