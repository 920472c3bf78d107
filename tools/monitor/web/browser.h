// Shows the page in the user's browser.
#pragma once

#include <string>

#include "tools/command/temporary_directory.h"

class Browser {
public:
    // Starts what the desktop has for files of this kind. It gets a file that leads to the address: all users of the
    // machine see the words that programs are started with.
    explicit Browser(const std::string &address);

    // Why nothing was started; empty when something was.
    [[nodiscard]] const std::string &failure() const { return m_failure; }

private:
    TemporaryDirectory m_directory; // closed to other users
    std::string m_failure;
};
