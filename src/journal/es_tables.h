// The versions and extensions that define each OpenGL ES function and enumerant, whatever the device supports.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace journal {

struct EsOrigin {
    bool isInEs1;
    int since;              // of ES 2 and 3: 20, 30, 31, 32; 0 for never
    const char *extensions; // separated by blanks
};

struct EsFunction {
    const char *name;
    EsOrigin origin;
    const char *kinds; // a letter a parameter: enumerant, bits, int, unsigned, long, float, double, pointer
};

struct EsEnumerant {
    uint32_t value;
    const char *name;
    EsOrigin origin;
};

// Null for a name that is not in OpenGL ES.
[[nodiscard]] const EsFunction *findEsFunction(std::string_view name);
// In the order of their values.
[[nodiscard]] std::span<const EsEnumerant> esEnumerants();
// The names of the extensions of OpenGL ES that devices have, sorted.
[[nodiscard]] std::span<const std::string_view> esExtensionNames();
// "GL_TEXTURE_3D", or the number in hexadecimal.
[[nodiscard]] std::string enumerantName(uint32_t value);

} // namespace journal
