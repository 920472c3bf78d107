#include "tools/monitor/record_fields.h"

#include <cstddef>
#include <cstring>

#include "capability/extension_catalogue.h"
#include "capability/versions.h"

using namespace capability;
using ui::messages::Message;

namespace {

#define NUMBER(name, structure, field)                                                                                 \
    { name, FieldKind::Unsigned, offsetof(structure, field) }
#define SIGNED(name, structure, field)                                                                                 \
    { name, FieldKind::Signed, offsetof(structure, field) }
#define CATALOGUE(kind, name, structure, field)                                                                        \
    { name, FieldKind::kind, offsetof(structure, field) }
#define NUMBER64(name, structure, field)                                                                               \
    { name, FieldKind::Unsigned64, offsetof(structure, field) }
#define FLAG(name, structure, field)                                                                                   \
    { name, FieldKind::Flag, offsetof(structure, field) }
#define TEXT(name, structure, field)                                                                                   \
    { name, FieldKind::Text, offsetof(structure, field), sizeof(structure::field) }
#define LIST(name, structure, field)                                                                                   \
    { name, FieldKind::List, offsetof(structure, field), sizeof(structure::field) / sizeof(uint32_t) }
#define EXTENSIONS(name, structure, field)                                                                             \
    { name, FieldKind::HostExtensionList, offsetof(structure, field), sizeof(structure::field) / sizeof(uint32_t) }

// clang-format off
const RecordKind kinds[] = {
    {ZV_PROCESS_HELLO, "process_hello", {SIGNED("process", zvProcessHello, processNumber)}},
    {ZV_LINK_STOP, "link_stop", {}},
    {ZV_WINDOW_TITLE, "window_title", {TEXT("text", zvTextMessage, text)}},
    {ZV_BACK_END_TEXT, "back_end_text",
     {NUMBER("value1", zvBackEndText, values[0]), NUMBER("value2", zvBackEndText, values[1]),
      TEXT("text", zvBackEndText, text)}},
    {ZV_BACK_END_MARKER, "back_end_marker", {}},
    {ZV_BACK_END_RECORD, "back_end_record",
     {NUMBER("value1", zvBackEndRecord, values[0]), NUMBER("value2", zvBackEndRecord, values[1]),
      NUMBER("value3", zvBackEndRecord, values[2]), NUMBER("value4", zvBackEndRecord, values[3]),
      TEXT("text", zvBackEndRecord, text)}},
    {ZV_LOG_INFO, "log_info", {TEXT("text", zvTextMessage, text)}},
    {ZV_LOG_WARNING, "log_warning", {TEXT("text", zvTextMessage, text)}},
    {ZV_LOG_ERROR, "log_error", {TEXT("text", zvTextMessage, text)}},
    {ZV_BACK_END_NAMED_TEXT, "back_end_named_text",
     {NUMBER("value", zvBackEndNamedText, value), TEXT("name", zvBackEndNamedText, name),
      TEXT("text", zvBackEndNamedText, text)}},
    {ZV_BACK_END_LISTS, "back_end_lists",
     {NUMBER64("key", zvBackEndLists, key), SIGNED("number", zvBackEndLists, number),
      NUMBER("value1", zvBackEndLists, firstValues[0]), NUMBER("value2", zvBackEndLists, firstValues[1]),
      LIST("list1", zvBackEndLists, firstLists[0]), LIST("list2", zvBackEndLists, firstLists[1]),
      LIST("list3", zvBackEndLists, firstLists[2]), NUMBER("value3", zvBackEndLists, lastValues[0]),
      NUMBER("value4", zvBackEndLists, lastValues[1]), LIST("list4", zvBackEndLists, lastList)}},
    {ZV_GUI_DISCONNECT, "gui_disconnect", {}},
    {ZV_GUI_RENDER_MODE_ON, "gui_render_mode_on", {}},
    {ZV_GUI_RENDER_MODE_OFF, "gui_render_mode_off", {}},
    {ZV_SYSTEM_REPORT_GL_VERSION, "system_report_gl_version",
     {CATALOGUE(GlVersion, "version", zvSystemReportGlVersion, glVersion)}},
    {ZV_SYSTEM_REPORT_EXTENSION, "system_report_extension",
     {CATALOGUE(HostExtension, "extension", zvSystemReportExtension, extension),
      FLAG("available", zvSystemReportExtension, isAvailable)}},
    {ZV_SYSTEM_REPORT_FEATURE, "system_report_feature",
     {TEXT("feature", zvSystemReportFeature, name), FLAG("available", zvSystemReportFeature, isAvailable)}},
    {ZV_SYSTEM_REPORT_FEATURE_ALTERNATIVE, "system_report_feature_alternative",
     {TEXT("feature", zvSystemReportFeatureAlternative, name),
      CATALOGUE(GlVersion, "version", zvSystemReportFeatureAlternative, minVersion),
      EXTENSIONS("extensions", zvSystemReportFeatureAlternative, extensions)}},
    {ZV_SYSTEM_REPORT_ES_REQUIREMENT, "system_report_es_requirement",
     {CATALOGUE(EsSection, "section", zvSystemReportEsRequirement, section),
      TEXT("feature", zvSystemReportEsRequirement, feature)}},
    {ZV_SYSTEM_REPORT_ES_EXTENSION_REQUIREMENT, "system_report_es_extension_requirement",
     {CATALOGUE(EsExtension, "extension", zvSystemReportEsExtensionRequirement, esExtension),
      TEXT("feature", zvSystemReportEsExtensionRequirement, feature)}},
    {ZV_SYSTEM_REPORT_END, "system_report_end", {}},
};
// clang-format on

template <typename Value>
Value at(const Message &message, size_t offset) {
    Value value;
    memcpy(&value, message.bytes + offset, sizeof value);
    return value;
}

} // namespace

const RecordKind *recordKind(uint32_t type) {
    for (const auto &kind : kinds) {
        if (kind.type == type) return &kind;
    }
    return nullptr;
}

std::string recordName(uint32_t type) {
    const RecordKind *kind = recordKind(type);
    return kind ? kind->name : "unknown";
}

std::vector<std::string> recordNames() {
    std::vector<std::string> names;
    for (const auto &kind : kinds)
        names.emplace_back(kind.name);
    names.emplace_back(endedName);
    return names;
}

bool hasFrame(const Message &message) {
    const uint32_t type = message.header.type;
    const bool isUnstamped = type >= ZV_SYSTEM_REPORT_GL_VERSION && type < ZV_SYSTEM_REPORT_END;
    return !isUnstamped && message.header.frameStamp != ZV_NO_FRAME;
}

std::string valueName(FieldKind kind, uint32_t value) {
    const auto nameOf = [&](const auto &name) {
        // Catalogues return the same text for all unknown numbers.
        const std::string found = name(static_cast<int32_t>(value));
        return found == name(-1) ? std::string() : found;
    };
    switch (kind) {
    case FieldKind::GlVersion:
        return nameOf(glVersionName);
    case FieldKind::HostExtension:
    case FieldKind::HostExtensionList:
        return nameOf(hostExtensionName);
    case FieldKind::EsSection:
        return value == 0 ? "base" : nameOf(esVersionName);
    case FieldKind::EsExtension:
        return nameOf([](int32_t number) { return esExtensionName(number, true); });
    default:
        return {};
    }
}

uint64_t numberAt(const Message &message, const Field &field) {
    return field.kind == FieldKind::Unsigned64 ? at<uint64_t>(message, field.offset)
                                               : at<uint32_t>(message, field.offset);
}

int32_t signedAt(const Message &message, const Field &field) {
    return at<int32_t>(message, field.offset);
}

std::string_view textAt(const Message &message, const Field &field) {
    const auto *text = reinterpret_cast<const char *>(message.bytes + field.offset);
    return {text, strnlen(text, field.room)};
}

std::vector<uint32_t> listAt(const Message &message, const Field &field) {
    std::vector<uint32_t> values;
    for (size_t index = 0; index < field.room; ++index) {
        const auto value = at<uint32_t>(message, field.offset + index * sizeof(uint32_t));
        if (value == 0) break;
        values.push_back(value);
    }
    return values;
}
