// Null when the variable is not set, and for every variable in a process with privileges that its user lacks.
#pragma once

[[nodiscard]] const char *findVariable(const char *name);
