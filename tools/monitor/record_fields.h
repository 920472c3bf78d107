// What each type of record is called and carries, for everybody who shows records.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "ui/message_builders.h"

enum class FieldKind { Unsigned, Signed, Unsigned64, Flag, Text, List };

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

[[nodiscard]] bool hasFrame(const ui::messages::Message &message);
[[nodiscard]] uint64_t numberAt(const ui::messages::Message &message, const Field &field);
[[nodiscard]] int32_t signedAt(const ui::messages::Message &message, const Field &field);
// Up to the zero, or all the room where a sender forgot it.
[[nodiscard]] std::string_view textAt(const ui::messages::Message &message, const Field &field);
[[nodiscard]] std::vector<uint32_t> listAt(const ui::messages::Message &message, const Field &field);
