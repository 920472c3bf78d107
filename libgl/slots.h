// Slots by name.
#pragma once

#include <cstddef>

namespace libgl {

inline constexpr size_t noSlot = ~size_t(0);

// The slot of a name in the table, or noSlot.
[[nodiscard]] size_t findNamedSlot(const char *name);
// The slot of a name that is in no table, the same one at each call. noSlot if too many names have one. Any thread.
[[nodiscard]] size_t takeUnnamedSlot(const char *name);
[[nodiscard]] const char *nameOfSlot(size_t slot);

} // namespace libgl
