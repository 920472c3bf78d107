// Text templates:
//   {{name}}                  the value of the name, escaped for HTML
//   {{#name}} ... {{/name}}   the contents, once for each item of a list, or once for any value except false, null and
//                             the empty text; names inside are looked up in the item first, and "." is the item itself
//   {{^name}} ... {{/name}}   the contents, if {{#name}} would omit them
#pragma once

#include <string>
#include <string_view>

#include "tools/command/json.h"

[[nodiscard]] std::string fillTemplate(std::string_view text, const Json &values);
