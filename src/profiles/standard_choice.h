// eglChooseConfig by the rules of the EGL standard.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "profiles/config.h"

namespace egl {

// Whether all attributes of the list are known and have valid values. A null list is an empty one.
[[nodiscard]] bool isValidByStandard(const int32_t *attributes);
// The first attribute, in the order of standard_choice.def, that rejects the config; nothing for one that matches.
[[nodiscard]] std::optional<FallOut> findFallOutByStandard(const Config &config, const int32_t *attributes);
void sortByStandard(std::vector<Config> &configs, const int32_t *attributes);
[[nodiscard]] Comparison compareByStandard(const Config &a, const Config &b, const int32_t *attributes);

} // namespace egl
