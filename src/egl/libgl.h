// The link to the libGL.so.1 of desktop programs, whose functions follow the current EGL contexts.
#pragma once

namespace egl {

// Connects the library if the process has loaded it already. One that is loaded later connects itself.
void connectLibGl();

} // namespace egl
