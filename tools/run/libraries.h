// The directory of the EGL and OpenGL ES libraries that a program loads.
#pragma once

#include <optional>
#include <string>

#include "tools/command/temporary_directory.h"

// Where our libraries are installed or built, seen from the command. Empty when they are not there.
[[nodiscard]] std::string ownLibraries();

class RunLibraries {
public:
    // With back ends from another directory, all or some, and our own for the rest; empty for our own only. The library
    // searches its own directory for back ends first, so a mixture is a directory of links beside a link to it. Fails
    // the command when our library is not where it was installed, or the directory has no back end.
    explicit RunLibraries(const std::string &backEnds);

    [[nodiscard]] const std::string &directory() const { return m_directory; }
    // The directories that the loader has to search first: that one, and that of the libGL.so.1 for desktop programs.
    [[nodiscard]] std::string searchPath() const;

private:
    std::optional<TemporaryDirectory> m_links;
    std::string m_directory;
};
