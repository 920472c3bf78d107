// The libGL.so.1 of desktop programs, whose functions follow our current contexts.
#pragma once

namespace egl {

// Connects it, if the process has loaded it already. One that is loaded later connects itself.
void connectLibGl();

} // namespace egl
