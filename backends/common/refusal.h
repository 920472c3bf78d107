// Contexts that a back end cannot support.
#pragma once

#include <zelvane/back_end.h>

#include <string>

// Defined by each back end: why the current host context cannot support such a context; empty when it can.
[[nodiscard]] std::string reasonToRefuse(const ContextAttribs &attribs);

// Prints one line on standard error, and sends it as a record to the GUI if there is one. Any thread.
void reportRefusal(const std::string &reason);
