// Whether the process runs desktop programs, to which eglGetProcAddress hands out every name that a back end has;
// others get a fixed list of names. Asked of the environment once. Any thread.
#pragma once

[[nodiscard]] bool servesDesktopClients();
