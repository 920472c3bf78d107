// The properties that an EGL library and its OpenGL ES contexts report to a program.
#pragma once

#include <string>

#include "tools/command/json.h"

// Loads the file into this process and queries it on the default display. "client" and "display" have strings,
// "configs" the attributes of each, "contexts" the strings, extensions and limits of each distinct context, with the
// versions whose requests get it, and "refused" the versions that get none. Throws a std::runtime_error when EGL cannot
// be loaded or initialised.
[[nodiscard]] Json askLibrary(const std::string &file);
