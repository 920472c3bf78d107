// The file names and system directories of dynamic libraries on this platform. Names that are used everywhere are in
// foundation/dynamic_library.h.
#pragma once

#include <string>
#include <vector>

// Where the host's OpenGL library may be, in search order.
[[nodiscard]] std::vector<std::string> systemLibraryDirectories();
