// The host functions that this library itself calls: the rows of the back end's data/host_calls.def. Any thread.
#pragma once

#include "es_gl.h"

#include <type_traits>

struct HostGl {
#define HOST_CALL(field, name) decltype(&::name) field;
#define DESKTOP_CALL(field, name, type) std::add_pointer_t<type> field;
#include "data/host_calls.def"
#undef DESKTOP_CALL
#undef HOST_CALL
};

// Null when the host has no OpenGL library or the library lacks one of the functions; the back end is unusable then.
[[nodiscard]] const HostGl *findHostGl();

// Filled by the first findHostGl(); read through hostGl().
extern HostGl hostGlTable;

// Valid only after findHostGl() has succeeded: for overrides, which are returned after it, and for contexts.
[[nodiscard]] inline const HostGl &hostGl() {
    return hostGlTable;
}

// Clears the errors of our own calls, which applications must not see. Requires a current host context.
void sweepHostErrors();
