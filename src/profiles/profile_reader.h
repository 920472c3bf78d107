// Reads a device profile from its XML text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/string.h"
#include "profiles/device_profile.h"

namespace egl {

// The text of the embedded profile of that name or else of the file of that name in the directory: an embedded profile
// hides a file. Nothing when the name is empty, or the file is not a regular one or cannot be opened.
[[nodiscard]] std::optional<std::string> findProfileText(const CKZRTString &directory, const CKZRTString &name);

// Adds the contents of the text to the profile. Configs with an existing id are dropped. False for a text that is not
// well-formed XML, which leaves the profile unchanged, and for one without a profile element and egl in it, which only
// sets the name.
[[nodiscard]] bool readDeviceProfile(DeviceProfile &profile, std::string_view text, const CKZRTString &name);

// Both steps. text, which may be null, receives the text on success.
[[nodiscard]] bool loadDeviceProfile(DeviceProfile &profile, const CKZRTString &directory, const CKZRTString &name,
                                     std::string *text = nullptr);

// The version for an es block's attribute value: 1, 11, 2, 20, 3, 30, 31 or 32.
[[nodiscard]] std::optional<capability::EsVersion> findVersionToken(int32_t version);

} // namespace egl
