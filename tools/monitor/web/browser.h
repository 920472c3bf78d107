// Shows the page in the user's browser.
#pragma once

#include <string>

#include "tools/command/temporary_directory.h"

class Browser {
public:
    // Starts the desktop's program for HTML files. It opens a file that redirects to the address, since all users of
    // the machine can see the arguments of programs.
    explicit Browser(const std::string &address);

    // Why nothing was started; empty on success.
    [[nodiscard]] const std::string &failure() const { return m_failure; }

private:
    TemporaryDirectory m_directory; // closed to other users
    std::string m_failure;
};
