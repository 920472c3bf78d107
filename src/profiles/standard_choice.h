// eglChooseConfig by the rules of the EGL standard.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "profiles/config.h"

namespace egl {

// Whether the list has known attributes with values that each can have. A null list is an empty one.
[[nodiscard]] bool isValidByStandard(const int32_t *attributes);
// The first attribute, in the order of standard_choice.def, that throws the config out; nothing for one that matches.
[[nodiscard]] std::optional<FallOut> findFallOutByStandard(const Config &config, const int32_t *attributes);
void sortByStandard(std::vector<Config> &configs, const int32_t *attributes);
[[nodiscard]] Comparison compareByStandard(const Config &a, const Config &b, const int32_t *attributes);

} // namespace egl
