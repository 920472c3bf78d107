// What the host can and cannot do, on standard error, for whoever reads why a context was refused.
#pragma once

namespace egl {

// Prints the system report of the state, at most once for the process, whichever failure asks first. Any thread.
void printSystemReportOnce();

} // namespace egl
