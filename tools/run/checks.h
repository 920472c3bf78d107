// Checks, before a program runs, whether it can use this library. Each check fails the command with an explanation, or
// prints a warning if the problem may be harmless.
#pragma once

#include <string>
#include <vector>

void checkXServer();

// words: the program and its arguments. libraries: the directory of EGL and OpenGL ES, already first in
// LD_LIBRARY_PATH. Scripts pass: the programs that they start are unknown.
void checkProgram(const std::vector<std::string> &words, const std::string &libraries);
