// The journal's record of one context: its device, and the errors that the journal read before the program queried
// them.
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

    // Null without a current context that is recorded. Created at the first call, which writes the device's line.
    [[nodiscard]] static RecordedContext *current();
    // Called when a new context gets the address of a recorded one.
    static void forget(void *context);

    // Whether the device lacks the function; checked once for each recorded call.
    [[nodiscard]] bool lacks(const RecordedCall &call);
    // The error that the last call left on the host, stored for the program. 0 for none.
    [[nodiscard]] uint32_t collectError();
    // The result of glGetError for the program.
    [[nodiscard]] uint32_t giveError();

    DeviceView device;

private:
    enum class Answer : uint8_t { unknown, carried, lacking };

    std::vector<Answer> m_functions; // by the number of the recorded call
    uint32_t m_kept = 0;
};

} // namespace journal
