// Environment variables that configure the library. All of it may be called from any thread that does not change the
// environment at the same time.
#pragma once

// Whether the process has privileges that the user who started it lacks: by set-user-ID, set-group-ID or file
// capabilities. That user's environment is then ignored, and no file is written.
[[nodiscard]] bool hasForeignRights();

// Null when the variable is not set, and for every variable in a privileged process.
[[nodiscard]] const char *findVariable(const char *name);
