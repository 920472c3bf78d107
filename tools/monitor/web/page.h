// The page, which the build embeds in the command.
#pragma once

#include <string>
#include <string_view>

// The placeholder for the nonce of scripts and styles, which differs in each response.
inline constexpr std::string_view pageNonce = "@NONCE@";

[[nodiscard]] std::string pageText();
