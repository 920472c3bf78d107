#include "journal/recorded_arguments.h"

#include <cstdio>
#include <cstring>
#include <iterator>

namespace journal {

namespace {

bool isFloating(char kind) {
    return kind == 'f' || kind == 'd';
}

std::string printed(const char *format, auto value) {
    char text[32];
    snprintf(text, sizeof text, format, value);
    return text;
}

} // namespace

// The calling convention assigns the registers of each class in turn, and the stack to the remaining arguments.
const uint64_t *RecordedArguments::place(size_t index) const {
    size_t integers = 0, floats = 0, stacked = 0;
    for (size_t i = 0;; ++i) {
        size_t &used = isFloating(m_kinds[i]) ? floats : integers;
        const size_t available = isFloating(m_kinds[i]) ? std::size(m_call.floats) : std::size(m_call.integers);
        const bool isStacked = used == available;
        if (i == index) {
            if (isStacked) return m_call.stack + stacked;
            if (!isFloating(m_kinds[i])) return m_call.integers + used;
            return reinterpret_cast<const uint64_t *>(m_call.floats[used]);
        }
        ++(isStacked ? stacked : used);
    }
}

uint64_t RecordedArguments::integer(size_t index) const {
    return *place(index);
}

std::string RecordedArguments::argumentText(size_t index) const {
    const uint64_t *const value = place(index);
    float single = 0;
    double whole = 0;
    switch (m_kinds[index]) {
    case 'e':
        return *value < 0x500 ? std::to_string(static_cast<uint32_t>(*value))
                              : enumerantName(static_cast<uint32_t>(*value));
    case 'i':
        return std::to_string(static_cast<int32_t>(*value));
    case 'u':
        return std::to_string(static_cast<uint32_t>(*value));
    case 'l':
        return std::to_string(static_cast<int64_t>(*value));
    case 'f':
        memcpy(&single, value, sizeof single);
        return printed("%g", static_cast<double>(single));
    case 'd':
        memcpy(&whole, value, sizeof whole);
        return printed("%g", whole);
    case 'b':
        return printed("0x%X", static_cast<uint32_t>(*value));
    default:
        return *value == 0 ? "NULL" : printed("0x%llx", static_cast<unsigned long long>(*value));
    }
}

std::string RecordedArguments::text() const {
    std::string text;
    for (size_t index = 0; m_kinds[index]; ++index)
        text += (index ? ", " : "") + argumentText(index);
    return text;
}

} // namespace journal
