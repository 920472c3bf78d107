// Writes the text of a profile, byte for byte.
#pragma once

#include <string>

struct ProfileExport {
    std::string name; // of a built-in profile, of a file in the profiles directory, or "Desktop"
    std::string path; // empty: standard output
    bool mayReplace = false;
};

// Fails the command when there is no such profile, and for an existing file unless it may be replaced.
void exportProfile(const ProfileExport &wanted);
