// Pictures as PNG files.
#pragma once

#include "egl_window.h"

#include <string>
#include <vector>

// pixels: RGBA, 8 bits each, rows from the bottom up. Alpha is ignored. Throws std::runtime_error.
void writePng(const std::string &file, Size size, const std::vector<GLubyte> &pixels);
