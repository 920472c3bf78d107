// The pages' access token, which cannot be guessed.
#pragma once

#include <string>
#include <string_view>

// 128 random bits of the system as 32 hexadecimal digits. Fails the command without a random source.
[[nodiscard]] std::string makeToken();

// Compares in constant time for texts of that length, so that the time does not reveal matching characters.
[[nodiscard]] bool isSameSecret(std::string_view secret, std::string_view text);
