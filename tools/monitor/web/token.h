// What keeps others out: a word that nobody can guess.
#pragma once

#include <string>
#include <string_view>

// 128 bits of the system's randomness as 32 hexadecimal digits. Fails the command without randomness.
[[nodiscard]] std::string makeToken();

// Takes as long for every text of that length, so that time does not tell how much of it is right.
[[nodiscard]] bool isSameSecret(std::string_view secret, std::string_view text);
