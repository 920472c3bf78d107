// JSON output of the command.
#pragma once

#include <string>

#include "foundation/json_list.h"

// The JSON on one line. Bytes that are not UTF-8, as after a cut in a text, become replacement characters.
[[nodiscard]] std::string jsonLine(const Json &json);

// Null for an empty text.
[[nodiscard]] Json orNull(const std::string &text);

// An object with one field per line, readable by people and programs. A list named by rows has one item per line.
[[nodiscard]] std::string jsonFields(const Json &object, const std::string &rows = {});
