// An X server without a screen, for one run.
#pragma once

#include <memory>
#include <string>

#include "tools/lab/child_process.h"

class VirtualServer {
public:
    // Whether Xvfb is in PATH.
    [[nodiscard]] static bool isThere();

    // Waits up to ten seconds until it accepts connections. display() is empty if it does not.
    VirtualServer();

    [[nodiscard]] const std::string &display() const { return m_display; }

private:
    std::unique_ptr<ChildProcess> m_process;
    std::string m_display; // ":3"
};
