// Numbers for versions of OpenGL, GLSL and OpenGL ES, and their texts. Pure; any thread.
// Texts compare byte by byte, without a locale. Name functions return a constant text for any value.
#pragma once

#include <cstdint>

namespace capability {

using GlVersion = int32_t;   // 1 to 19 for 1.0 to 4.6
using GlslVersion = int32_t; // 1 to 13 for 1.10 to 4.60
using EsVersion = int32_t;   // 1 to 5 for 1.1 to 3.2; 0 for none

constexpr GlVersion noGlVersion = 0; // no text was given; below every requirement
constexpr GlVersion gl1_0 = 1;       // as a requirement: none
constexpr GlVersion gl3_0 = 9;       // the first version that lists extensions one by one
constexpr GlVersion gl4_3 = 16;
constexpr GlVersion gl4_5 = 18;
constexpr GlVersion unknownGlVersion = 20; // a text that no row matches; passes every requirement
constexpr GlslVersion noGlslVersion = 0;
constexpr GlslVersion unknownGlslVersion = 14;
constexpr EsVersion es1_1 = 1;
constexpr EsVersion es2_0 = 2;
constexpr EsVersion es3_0 = 3;
constexpr EsVersion es3_1 = 4;
constexpr EsVersion es3_2 = 5;

// Only the beginning of the text is compared, so that a driver may append anything to the number. Null is no text.
[[nodiscard]] GlVersion parseGlVersion(const char *text);
[[nodiscard]] const char *glVersionName(GlVersion value);

[[nodiscard]] GlslVersion parseGlslVersion(const char *text);
[[nodiscard]] const char *glslVersionName(GlslVersion value, bool isShort);

[[nodiscard]] const char *esVersionName(EsVersion value);
// 0 for an unknown version. Major versions 1 and 2 accept any minor version.
[[nodiscard]] EsVersion esVersionFromContext(int32_t major, int32_t minor);

} // namespace capability
