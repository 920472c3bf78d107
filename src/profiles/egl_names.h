// The names in EGL's header for attributes, values and errors, in both directions. Any thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace egl {

// "EGL_DEPTH_SIZE", or the number in hexadecimal.
[[nodiscard]] std::string attributeName(int32_t attribute);
// A value of that attribute: "24", "EGL_DONT_CARE", "EGL_WINDOW_BIT|EGL_PBUFFER_BIT". Unnamed bits follow as one
// number at the end.
[[nodiscard]] std::string valueText(int32_t attribute, int32_t value);
// The key of a Comparison: an attribute, or "colour bits" for their sum.
[[nodiscard]] std::string keyName(int32_t key);
[[nodiscard]] std::string keyText(int32_t key, int32_t value);
[[nodiscard]] std::string errorName(int32_t error);
// "EGL_DEPTH_SIZE 24, EGL_SAMPLES 4" for a list of pairs; empty for a null list.
[[nodiscard]] std::string attributeListText(const int32_t *attributes);

// The config attribute of that name, with or without "EGL_", in any case. Nothing for unknown names.
[[nodiscard]] std::optional<int32_t> findConfigAttribute(std::string_view name);
// Parses a number, decimal or "0x...", or names of the attribute's values, joined by "|".
[[nodiscard]] std::optional<int32_t> readValue(int32_t attribute, std::string_view text);

// Full names, in the order of EGL's own table.
[[nodiscard]] std::vector<std::string> configAttributeNames();
[[nodiscard]] std::vector<std::string> valueNames(int32_t attribute);

} // namespace egl
