// Texts with holes. In a template
//   {{name}}                  is the value of the name, with what HTML has a meaning for escaped
//   {{#name}} ... {{/name}}   is there once for each item of a list, or once for a value that is neither false nor null
//   nor
//                             empty; names inside are looked for in the item first, and "." is the item itself
//   {{^name}} ... {{/name}}   is there where the other is not
#pragma once

#include <string>
#include <string_view>

#include "tools/command/json.h"

[[nodiscard]] std::string fillTemplate(std::string_view text, const Json &values);
