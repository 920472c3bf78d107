// The devices on which a lab can run a program.
#pragma once

#include <string>
#include <vector>

// "Desktop", the built-in ones, and the profile files of the user's directory.
[[nodiscard]] std::vector<std::string> allDevices();

// Parses names that are separated by commas. Fails the command for an unknown one.
[[nodiscard]] std::vector<std::string> readDevices(const std::string &names);
