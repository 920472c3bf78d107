// Functions that stand before others without knowing their arguments, and what they call.
#pragma once

#include <cstddef>
#include <cstdint>

#include "gl/function_table.h"
#include "journal/recorded_arguments.h"

namespace journal {

inline constexpr size_t thunkCount = 4096;

// The thunk of that number; the function itself on machines that this library has none for.
[[nodiscard]] gl::Function thunk(uint32_t number, gl::Function function);

// What a thunk calls before the function, which this gives, and after it. recorded_calls.cpp has both.
[[nodiscard]] gl::Function beginCall(uint32_t number, const SavedCall &saved);
void endCall(uint32_t number, const SavedCall &saved);

} // namespace journal
