// Profile names as arguments.
#pragma once

#include <string>
#include <vector>

// The built-in profiles, in the library's order.
[[nodiscard]] std::vector<std::string> builtInProfileNames();

// The files of a directory, in its order, whatever their contents. Prints an error when it cannot be read.
[[nodiscard]] std::vector<std::string> fileNames(const std::string &directory);

// The default profile of programs, which is installed with the command as a file, and its directory.
inline constexpr char desktopProfile[] = "Desktop";
[[nodiscard]] std::string shippedProfiles();

// Fails the command for a name that is neither built in nor a file of the directory, with a suggestion.
[[noreturn]] void failForProfile(const std::string &name, const std::string &directory);

// Fails the command unless the name is that of a built-in profile or of a readable file in the directory. An empty
// directory stands for none.
void checkProfileName(const std::string &name, const std::string &directory);
