// What this library itself calls on the host: the rows of the back end's data/host_calls.def. Any thread.
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

// Null when the host has no OpenGL library or the library lacks one of the functions; nothing works then.
[[nodiscard]] const HostGl *findHostGl();

// Filled by the first findHostGl(); read through hostGl().
extern HostGl hostGlTable;

// For code that runs only once findHostGl() has answered: overrides, which are handed out after it, and contexts.
[[nodiscard]] inline const HostGl &hostGl() {
    return hostGlTable;
}

// Applications check for errors from their first call on and must not meet ours. With the host context current.
void sweepHostErrors();
