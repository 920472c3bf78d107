// The devices that a lab can run a program on.
#pragma once

#include <string>
#include <vector>

// "Desktop", the built-in ones, and the profile files of the user's directory.
[[nodiscard]] std::vector<std::string> allDevices();

// Of names with commas between. Fails the command for one that there is not.
[[nodiscard]] std::vector<std::string> readDevices(const std::string &names);
