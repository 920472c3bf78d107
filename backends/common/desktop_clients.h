// Whether the process runs desktop programs, for which eglGetProcAddress returns every name that a back end has; others
// get a fixed list of names. Read from the environment once. Any thread.
#pragma once

[[nodiscard]] bool servesDesktopClients();
