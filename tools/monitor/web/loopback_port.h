// Ports of the loopback address.
#pragma once

// 0 when the port can be listened on now, or the error number.
[[nodiscard]] int whyNotFree(int port);
// The next higher free port; 0 if there is none.
[[nodiscard]] int nextFreePort(int port);
