// What the dynamic libraries of this platform are called and where the system keeps them. The names that everyone needs
// stand in foundation/dynamic_library.h.
#pragma once

#include <string>
#include <vector>

// Where the host's OpenGL library may lie, in the order to look.
[[nodiscard]] std::vector<std::string> systemLibraryDirectories();
