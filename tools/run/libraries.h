// The directory that a program is to find its EGL and OpenGL ES libraries in.
#pragma once

#include <optional>
#include <string>

#include "tools/command/temporary_directory.h"

class RunLibraries {
public:
    // Of back ends in another directory, whole or in part, and our own for the rest; empty for our own alone. The
    // library looks for back ends beside itself first, so a mixture is laid out in links beside a link to it. Fails the
    // command when our library is not where it was installed, or the directory has no back end.
    explicit RunLibraries(const std::string &backEnds);

    [[nodiscard]] const std::string &directory() const { return m_directory; }

private:
    std::optional<TemporaryDirectory> m_links;
    std::string m_directory;
};
