// Environment variables that steer the library. All of it may be called from any thread that does not change the
// environment at the same time.
#pragma once

// Whether the process has rights that the user who started it has not: by set-user-ID, set-group-ID or file
// capabilities. That user's environment steers nothing then, and no file is written.
[[nodiscard]] bool hasForeignRights();

// Null when the variable is not set, and for every variable in a process with foreign rights.
[[nodiscard]] const char *findVariable(const char *name);
