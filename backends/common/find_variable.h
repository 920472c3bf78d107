// Null when the variable is not set, and for every variable in a process with rights that its user has not.
#pragma once

[[nodiscard]] const char *findVariable(const char *name);
