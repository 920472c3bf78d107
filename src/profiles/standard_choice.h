// eglChooseConfig by the rules of the EGL standard.
#pragma once

#include <cstdint>
#include <vector>

#include "profiles/config.h"

namespace egl {

// Whether the list has known attributes with values that each can have. A null list is an empty one.
[[nodiscard]] bool isValidByStandard(const int32_t *attributes);
[[nodiscard]] bool matchesByStandard(const Config &config, const int32_t *attributes);
void sortByStandard(std::vector<Config> &configs, const int32_t *attributes);

} // namespace egl
