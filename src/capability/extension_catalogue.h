// Numbers for the extensions of desktop OpenGL and OpenGL ES. Pure; any thread.
#pragma once

#include <cstdint>

namespace capability {

using HostExtension = int32_t; // 1 to hostExtensionCount; 0 for none
using EsExtension = int32_t;   // 1 to 127; 0 for none

extern const HostExtension hostExtensionCount;

// 0 for null and for a name that is not in the catalogue. Accepts a stored name, with or without one more "GL_" in
// front: one rule serves both catalogues, and that of ES stores names without a prefix.
[[nodiscard]] HostExtension hostExtensionFromName(const char *name);
[[nodiscard]] const char *hostExtensionName(HostExtension value);

[[nodiscard]] EsExtension esExtensionFromName(const char *name);
[[nodiscard]] const char *esExtensionName(EsExtension value, bool withPrefix);

// The columns of the ES catalogue: an ES version's extensions in ascending order.
enum class EsExtensionList { es1_1, es2_0, es3_0, es3_1 };

// From a position in that version's list, counted from 1. 0 for a position outside it.
[[nodiscard]] EsExtension esExtensionsFor(EsExtensionList list, int32_t position);

} // namespace capability
