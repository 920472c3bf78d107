// Prints the host's capabilities to standard error, to explain why a context cannot be created.
#pragma once

namespace egl {

// Prints the system report of the state, at most once per process, at the first failure that calls it. Any thread.
void printSystemReportOnce();

} // namespace egl
