// How a back end says that it cannot serve a context.
#pragma once

#include <string>

// One line on standard error, and the same as a record to the GUI if there is one. Any thread.
void reportRefusal(const std::string &reason);
