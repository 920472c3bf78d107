// The element types of a preferences file, and the result codes of its accessors.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "preferences/fnv1_hash.h"

// Index into preferenceTypes.
enum class PreferenceType : uint32_t { string, integer, real, isTrue, isFalse, array, dict, data, key };

struct PreferenceTypeEntry {
    constexpr explicit PreferenceTypeEntry(const char *element) : hash(fnv1Hash(element)), name(element) {}

    uint32_t hash;
    const char *name;
};

inline constexpr std::array<PreferenceTypeEntry, 9> preferenceTypes = {
    PreferenceTypeEntry("string"), PreferenceTypeEntry("integer"), PreferenceTypeEntry("real"),
    PreferenceTypeEntry("true"),   PreferenceTypeEntry("false"),   PreferenceTypeEntry("array"),
    PreferenceTypeEntry("dict"),   PreferenceTypeEntry("data"),    PreferenceTypeEntry("key"),
};

[[nodiscard]] constexpr const PreferenceTypeEntry &entryOf(PreferenceType type) {
    return preferenceTypes[static_cast<uint32_t>(type)];
}

enum PreferenceResult : int32_t {
    RESULT_SUCCESS = 0,
    RESULT_NO_VALUE = 1,       // the path leads to no value, or the value is empty
    RESULT_BAD_KEY = 2,        // the key is empty; setters only
    RESULT_INCORRECT_TYPE = 3, // the value has another type, or its text does not parse
    RESULT_CRITICAL_ERROR = 4, // no document, or a failed reload or stream
};

// The names do not match the codes from RESULT_BAD_KEY upwards: code 2 is called INCORRECT_TYPE, code 3
// CRITICAL_ERROR. Null for every other code.
[[nodiscard]] constexpr const char *resultName(int32_t code) {
    constexpr std::array names = {"SUCCESS", "NO_VALUE", "INCORRECT_TYPE", "CRITICAL_ERROR"};
    return code >= 0 && static_cast<size_t>(code) < names.size() ? names[static_cast<size_t>(code)] : nullptr;
}
