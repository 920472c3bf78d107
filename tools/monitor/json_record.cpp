#include "tools/monitor/json_record.h"

#include "tools/command/json.h"
#include "tools/monitor/record_fields.h"
#include "tools/monitor/time_text.h"

using ui::messages::Message;

namespace {

// A number without a name is written as a number.
Json catalogueValue(FieldKind kind, uint32_t value) {
    const std::string name = valueName(kind, value);
    return name.empty() ? Json(value) : Json(name);
}

Json fieldValue(const Message &message, const Field &field) {
    switch (field.kind) {
    case FieldKind::Unsigned:
    case FieldKind::Unsigned64:
        return numberAt(message, field);
    case FieldKind::Signed:
        return signedAt(message, field);
    case FieldKind::Flag:
        return numberAt(message, field) != 0;
    case FieldKind::Text:
        return textAt(message, field);
    case FieldKind::List:
    case FieldKind::HostExtensionList:
        return jsonList(listAt(message, field), [&](uint32_t value) { return catalogueValue(field.kind, value); });
    default:
        return catalogueValue(field.kind, static_cast<uint32_t>(numberAt(message, field)));
    }
}

// The time is in UTC: "2031-12-24T18:00:00.000Z".
Json head(const MonitoredApplication &application, const std::string &type) {
    return {{"time", timeTextNow(gmtime_r, "%FT%T") + "Z"},
            {"pid", application.processNumber()},
            {"command", application.commandName()},
            {"type", type}};
}

} // namespace

std::string jsonRecord(const MonitoredApplication &application, const Message &message) {
    const uint32_t type = message.header.type;
    const RecordKind *kind = recordKind(type);
    Json json = head(application, recordName(type));
    if (hasFrame(message)) json["frame"] = message.header.frameStamp;
    if (!kind) json["number"] = type;
    for (const Field &field : kind ? kind->fields : std::vector<Field>{})
        json[field.name] = fieldValue(message, field);
    return jsonLine(json);
}

std::string jsonEnd(const MonitoredApplication &application) {
    return jsonLine(head(application, endedName));
}
