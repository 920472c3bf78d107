// The names and fields of each record type, for all code that shows records.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "ui/message_builders.h"

enum class FieldKind {
    Unsigned,
    Signed,
    Unsigned64,
    Flag,
    Text,
    List,
    // Numbers of the catalogues, whose names valueName() returns.
    GlVersion,
    HostExtension,
    HostExtensionList,
    EsSection,
    EsExtension,
};

struct Field {
    const char *name;
    FieldKind kind;
    size_t offset;
    size_t room = 1; // characters of a text, entries of a list
};

struct RecordKind {
    uint32_t type;
    const char *name;
    std::vector<Field> fields;
};

// Null for an unknown type.
[[nodiscard]] const RecordKind *recordKind(uint32_t type);

// The name of the type, or "unknown".
[[nodiscard]] std::string recordName(uint32_t type);
// The name for the end of a connection, which is not a record.
inline constexpr char endedName[] = "ended";
// All names, including endedName.
[[nodiscard]] std::vector<std::string> recordNames();

[[nodiscard]] bool hasFrame(const ui::messages::Message &message);
[[nodiscard]] uint64_t numberAt(const ui::messages::Message &message, const Field &field);
[[nodiscard]] int32_t signedAt(const ui::messages::Message &message, const Field &field);
// Up to the terminator, or the whole field if the sender left it out.
[[nodiscard]] std::string_view textAt(const ui::messages::Message &message, const Field &field);
// The name of a number of a catalogue; empty for an unknown number.
[[nodiscard]] std::string valueName(FieldKind kind, uint32_t value);
[[nodiscard]] std::vector<uint32_t> listAt(const ui::messages::Message &message, const Field &field);
