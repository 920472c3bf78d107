// The lines about failed calls that a user of "zelvane run" sees: one for each call and reason.
#pragma once

#include <string>

namespace egl::refusals {

// Whether lines are read, which is so in desktop mode.
[[nodiscard]] bool hasReaders();

// Prints the line on standard error, unless it was printed before.
void tell(const std::string &line);

// For calls that programs retry until one succeeds, such as contexts of ever lower versions: a series that succeeds in
// the end is not reported. The line is passed to "zelvane run", which prints it when the program ends, for whatever
// reason, if no call of that name succeeded later. The command holds it and not this process, since a program that
// hangs with a black window is ended by a signal and cannot print it then. Without the command nothing is printed;
// the journal records it all the same.
void hold(const char *call, const std::string &line);
// A call of that name succeeded: its held lines are discarded.
void settle(const char *call);

} // namespace egl::refusals
