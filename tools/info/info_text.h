// The results of askLibrary() as text.
#pragma once

#include <string>

#include "tools/command/json.h"

// info: "device" and the fields of askLibrary().
[[nodiscard]] std::string infoAsText(const Json &info);
