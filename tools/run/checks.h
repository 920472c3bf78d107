// What can be known before a program runs of why it will not run on this library. Each check fails the command with a
// sentence about it; what may do no harm is said as a warning.
#pragma once

#include <string>
#include <vector>

void checkXServer();

// words: the program and its arguments. libraries: where it is to find EGL and OpenGL ES, already first in
// LD_LIBRARY_PATH. Scripts pass: what they start is not known.
void checkProgram(const std::vector<std::string> &words, const std::string &libraries);
