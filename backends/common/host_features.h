// The capabilities of the host's context. Constant once read, and used on any thread.
#pragma once

#include <memory>
#include <set>
#include <string>
#include <string_view>

class HostFeatures {
public:
    // The capabilities of the host context that is current on this thread. The extension list is read once per version
    // and renderer in the process, and kept as long as the library is loaded: reading it takes longer than creating the
    // rest of a back-end context.
    static std::shared_ptr<const HostFeatures> ofCurrentContext();

    // Such as 43 for 4.3; 0 when the host does not report it.
    [[nodiscard]] int version() const { return m_version; }
    [[nodiscard]] bool hasExtension(std::string_view name) const { return m_extensions.contains(name); }

    // version: 0 for none. extensions: separated by blanks. True when the host has that version or any of the
    // extensions.
    [[nodiscard]] bool carries(int version, std::string_view extensions) const;

private:
    HostFeatures();
    void readExtensionString();
    void readExtensionList();

    int m_version = 0;
    std::set<std::string, std::less<>> m_extensions;
};
