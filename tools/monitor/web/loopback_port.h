// Ports of the loopback address.
#pragma once

// 0 when somebody can listen there now, or the number of the error.
[[nodiscard]] int whyNotFree(int port);
// The next one above that is free; 0 when there is none.
[[nodiscard]] int nextFreePort(int port);
