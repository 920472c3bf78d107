// What the host's context can carry. Constant once read; made with the host context current, then used on any thread.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <vector>

class HostFeatures {
public:
    HostFeatures();

    // version: such as 43 for 4.3, 0 for none. extensions: with a blank between. True when the host has that version or
    // any of the extensions.
    [[nodiscard]] bool carries(int version, std::string_view extensions) const;

    // Names of the host's extensions that also are extensions of ES, sorted.
    [[nodiscard]] std::vector<std::string> esExtensions() const;

private:
    int m_version = 0;
    std::set<std::string, std::less<>> m_extensions;
};
