// The arguments of a call of any signature: the registers and the stack as the caller left them.
#pragma once

#include <cstdint>
#include <string>

#include "journal/es_tables.h"

namespace journal {

// The layout that recording_thunks.cpp saves on the stack; it has these offsets as numbers.
struct SavedCall {
    double floats[8][2]; // the lower half of each register; a float uses half of that
    uint64_t unused;
    uint64_t floatCount;
    uint64_t integers[6];
    uint64_t alsoUnused;
    uint64_t callerRbx;
    uint64_t callerRbp;
    uint64_t returnAddress;
    uint64_t stack[1]; // of variable length
};

// The arguments of a function, by their kinds.
class RecordedArguments {
public:
    RecordedArguments(const SavedCall &call, const char *kinds) : m_call(call), m_kinds(kinds) {}

    // By position in the signature, from 0. For kinds other than float and double.
    [[nodiscard]] uint64_t integer(size_t place) const;
    // "GL_TEXTURE_2D, 0, 0.5": pointers as hexadecimal numbers.
    [[nodiscard]] std::string text() const;

private:
    [[nodiscard]] const uint64_t *place(size_t index) const;
    [[nodiscard]] std::string argumentText(size_t index) const;

    const SavedCall &m_call;
    const char *m_kinds;
};

} // namespace journal
