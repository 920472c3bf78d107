// What each type of record is called and carries, for everybody who shows records.
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
    // Numbers of the catalogues, which valueName() knows.
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

// Null for a type that no record has.
[[nodiscard]] const RecordKind *recordKind(uint32_t type);

// The name of the type, or "unknown".
[[nodiscard]] std::string recordName(uint32_t type);
// What the end of a connection is called, which no record tells.
inline constexpr char endedName[] = "ended";
// All names, endedName with them.
[[nodiscard]] std::vector<std::string> recordNames();

[[nodiscard]] bool hasFrame(const ui::messages::Message &message);
[[nodiscard]] uint64_t numberAt(const ui::messages::Message &message, const Field &field);
[[nodiscard]] int32_t signedAt(const ui::messages::Message &message, const Field &field);
// Up to the zero, or all the room where a sender forgot it.
[[nodiscard]] std::string_view textAt(const ui::messages::Message &message, const Field &field);
// What a number of a catalogue stands for; empty where it stands for nothing.
[[nodiscard]] std::string valueName(FieldKind kind, uint32_t value);
[[nodiscard]] std::vector<uint32_t> listAt(const ui::messages::Message &message, const Field &field);
