// Fixed-point numbers in 16.16 format.
#pragma once

#include "es_gl.h"

#include <algorithm>
#include <cmath>

inline constexpr double fixedOne = 65536.0;

[[nodiscard]] constexpr double preciseFromFixed(GLfixed number) {
    return number / fixedOne;
}

[[nodiscard]] constexpr GLfloat fromFixed(GLfixed number) {
    return static_cast<GLfloat>(preciseFromFixed(number));
}

// Rounds to the nearest integer, clamped to the range of the type; NaN returns 0.
[[nodiscard]] inline GLint toInteger(double number) {
    if (std::isnan(number)) return 0;
    return static_cast<GLint>(std::lround(std::clamp(number, -2147483648.0, 2147483647.0)));
}

[[nodiscard]] inline GLfixed toFixed(double number) {
    return toInteger(number * fixedOne);
}
