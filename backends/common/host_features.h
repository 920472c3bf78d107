// What the host's context can carry. Constant once read; made with the host context current, then used on any thread.
#pragma once

#include <set>
#include <string>
#include <string_view>

class HostFeatures {
public:
    HostFeatures();

    // Such as 43 for 4.3; 0 when the host does not say.
    [[nodiscard]] int version() const { return m_version; }
    [[nodiscard]] bool hasExtension(std::string_view name) const { return m_extensions.contains(name); }

    // version: 0 for none. extensions: with a blank between. True when the host has that version or any of the
    // extensions.
    [[nodiscard]] bool carries(int version, std::string_view extensions) const;

private:
    void readExtensionString();
    void readExtensionList();

    int m_version = 0;
    std::set<std::string, std::less<>> m_extensions;
};
