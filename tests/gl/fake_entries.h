// Stands in for the entries of src/egl/ that lookups hand out.
#pragma once

namespace fake {

// What ensureLoaded() answers.
extern bool isLoadable;

} // namespace fake
