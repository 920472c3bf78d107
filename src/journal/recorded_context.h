// What the journal keeps of one context: its device, and the errors that it took before the program asked.
#pragma once

#include <cstdint>
#include <vector>

#include "gl/function_table.h"
#include "journal/device_view.h"

namespace journal {

struct RecordedCall;

class RecordedContext {
public:
    explicit RecordedContext(const gl::FunctionTable &table) : device(table) {}

    // Null without a current context. Made at the first question, which writes what the device tells.
    [[nodiscard]] static RecordedContext *current();
    // A new context lives at the address of the table's.
    static void forget(void *context);

    // Whether the device lacks the function; asked once for each recorded call.
    [[nodiscard]] bool lacks(const RecordedCall &call);
    // The error that the last call left on the host, kept for the program. 0 for none.
    [[nodiscard]] uint32_t collectError();
    // As glGetError answers the program.
    [[nodiscard]] uint32_t giveError();

    DeviceView device;

private:
    enum class Answer : uint8_t { unknown, carried, lacking };

    std::vector<Answer> m_functions; // by the number of the recorded call
    uint32_t m_kept = 0;
};

} // namespace journal
