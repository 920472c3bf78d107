// Wrappers of functions of any signature, and the functions that they call.
#pragma once

#include <cstddef>
#include <cstdint>

#include "gl/function_table.h"
#include "journal/recorded_arguments.h"

namespace journal {

inline constexpr size_t thunkCount = 4096;

// The thunk of that number; the function itself on machines for which this library has no thunks.
[[nodiscard]] gl::Function thunk(uint32_t number, gl::Function function);

// Called by a thunk on the caller's thread: beginCall before the function, which it returns, and endCall after it. Both
// are in recorded_calls.cpp.
[[nodiscard]] gl::Function beginCall(uint32_t number, const SavedCall &saved);
void endCall(uint32_t number, const SavedCall &saved);

} // namespace journal
