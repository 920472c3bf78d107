// The page, which the build takes into the command.
#pragma once

#include <string>
#include <string_view>

// Stands in the page for the word that its scripts and styles carry, another one each time.
inline constexpr std::string_view pageNonce = "@NONCE@";

[[nodiscard]] std::string pageText();
