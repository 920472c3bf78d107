// The name of a profile as a user gives it.
#pragma once

#include <string>

// Fails the command unless the name is that of a built-in profile or of a file in the directory that can be read. An
// empty directory stands for none.
void checkProfileName(const std::string &name, const std::string &directory);
