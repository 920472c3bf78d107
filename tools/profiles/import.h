// Installs a profile file into the profiles directory.
#pragma once

#include <string>

struct ProfileImport {
    std::string path; // "-" is standard input
    std::string name; // empty: the device that the profile names, else the file's name without ".xml"
    bool mayReplace = false;
};

// Prints the faults of the text and the path of the installed file. Without a profiles directory, the default one is
// created and stored. Fails the command, with nothing installed, for a text that the library cannot load, a name that
// cannot select it, and an existing file unless it may be replaced.
void importProfile(const ProfileImport &import);
