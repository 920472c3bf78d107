// Contexts that a back end cannot serve.
#pragma once

#include <zelvane/back_end.h>

#include <string>

// Each back end defines it: why the current host context cannot serve such a context; empty when it can.
[[nodiscard]] std::string reasonToRefuse(const ContextAttribs &attribs);

// One line on standard error, and the same as a record to the GUI if there is one. Any thread.
void reportRefusal(const std::string &reason);
