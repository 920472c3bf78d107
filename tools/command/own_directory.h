// Finds the files that are installed with the command.
#pragma once

#include <initializer_list>
#include <string>

// The first of the directories, relative to that of the command's program, that contains the file. Empty when none
// does.
[[nodiscard]] std::string findOwnDirectory(const std::string &file, std::initializer_list<const char *> directories);

// The same, but fails the command when none does.
[[nodiscard]] std::string ownDirectory(const std::string &file, std::initializer_list<const char *> directories);
