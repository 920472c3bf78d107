// The server's own list of FBConfigs, read in one request. For each queried value GLX searches all configs, of which
// servers have hundreds.
#pragma once

#include <cstdint>
#include <vector>

#include <X11/Xlib.h>

namespace host::platform::x11 {

class ServerConfigs {
public:
    // Empty when the server does not reply, and with a GLX other than Mesa's, which may have configs of its own.
    ServerConfigs(Display *display, int screen);

    // The attributes of one config. The values are those that GLX reports, except for the limits of pbuffers, which
    // are the client's.
    class Row {
    public:
        Row() = default;
        explicit operator bool() const { return m_pairs != nullptr; }
        // 0 for an attribute that the server does not list.
        [[nodiscard]] int value(int attribute) const;

    private:
        friend class ServerConfigs;
        Row(const uint32_t *pairs, uint32_t count) : m_pairs(pairs), m_count(count) {}

        const uint32_t *m_pairs = nullptr; // attribute, value
        uint32_t m_count = 0;
    };

    // The row of the config with this id, which is expected at that place of the list. Empty when it is not there.
    // Valid as long as this object.
    [[nodiscard]] Row find(uint32_t place, int id) const;

private:
    std::vector<uint32_t> m_values; // the rows, one after the other
    uint32_t m_pairsOfRow = 0;
};

} // namespace host::platform::x11
