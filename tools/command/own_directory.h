// Where the files lie that come with the command.
#pragma once

#include <initializer_list>
#include <string>

// The first of the directories, which are relative to that of the command's program, that has the file. Fails the
// command when none has.
[[nodiscard]] std::string ownDirectory(const std::string &file, std::initializer_list<const char *> directories);
