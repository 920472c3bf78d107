// What a user of "zelvane run" reads of refused calls: one line for each call and reason.
#pragma once

#include <string>

namespace egl::refusals {

// Whether anybody reads lines: the process serves desktop programs.
[[nodiscard]] bool hasReaders();

// Prints the line on standard error, unless it has been.
void tell(const std::string &line);

// For calls that programs try in turn until one is taken, such as contexts of ever lower versions: nothing is said of a
// ladder that ends well. The line is handed to "zelvane run", which prints it at the end of the program, however that
// comes, if no call of that name succeeded later. The command holds it and not this process, since a program that
// hangs with a black window is ended by a signal, and has no later moment of its own. Without the command nothing is
// printed; the journal has it all the same.
void hold(const char *call, const std::string &line);
// A call of that name succeeded: what was held of it is forgotten.
void settle(const char *call);

} // namespace egl::refusals
