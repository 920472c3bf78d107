// The device profiles inside the library. Filled before the first EGL call, constant afterwards,
// and never destroyed, since threads may read them while the process ends.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace egl {

// XML texts, in the order in which a name is searched.
extern const std::vector<std::string_view> &embeddedProfiles;

// The name that selects a profile text: its device, or "Generic " and its renderer. Empty when it has neither or does
// not parse.
[[nodiscard]] std::string profileDisplayName(std::string_view text);

// The first text of that name; empty if there is none. Parses the texts that contain the name, at every call.
[[nodiscard]] std::string findEmbeddedProfile(std::string_view name);

} // namespace egl
