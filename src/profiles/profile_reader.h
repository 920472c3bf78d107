// Reads a device profile from its XML text.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "foundation/string.h"
#include "profiles/device_profile.h"

namespace egl {

// The text of the embedded profile of that name or else of the file of that name in the directory: an embedded profile
// hides a file. Nothing when the name is empty or the file is no regular one or cannot be opened.
[[nodiscard]] std::optional<std::string> findProfileText(const CKZRTString &directory, const CKZRTString &name);

// Adds what the text says to the profile. Configs with an id that is there already are dropped. False for a text that
// is no well-formed XML, which leaves the profile alone, and for one without a profile element and egl in it, which
// leaves it with the name.
[[nodiscard]] bool readDeviceProfile(DeviceProfile &profile, std::string_view text, const CKZRTString &name);

// Both in one. text, which may be null, gets the text on success.
[[nodiscard]] bool loadDeviceProfile(DeviceProfile &profile, const CKZRTString &directory, const CKZRTString &name,
                                     std::string *text = nullptr);

// The version that an es block's attribute stands for: 1, 11, 2, 20, 3, 30, 31 or 32.
[[nodiscard]] std::optional<capability::EsVersion> findVersionToken(int32_t version);

} // namespace egl
