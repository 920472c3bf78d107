// Contexts that are nothing but an address, and a back end that answers for them. Stands in for src/egl/context.cpp
// and thread_record.cpp.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "egl/context.h"
#include "egl/thread_record.h"

namespace fake {

// Context number index, from 0 to 63. Nothing but its address may be used.
egl::Context *context(size_t index);

// Nothing current on this thread, nothing asked and logged yet, and a back end without any function.
void reset();

// What the back end answers. Called on the asking thread; set it before there are several.
extern std::function<void *(const egl::Context *, const std::string &name)> backEnd;

// How often the back end was asked since the reset, by any context.
size_t questionCount();

// The texts logged since the last call.
std::vector<std::string> takeLog();

} // namespace fake
