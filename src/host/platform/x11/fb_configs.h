// The framebuffer configs of one screen, and which of them stands for an attribute list. Read once, since the first
// look costs tens of milliseconds. Any thread.
#pragma once

#include <compare>
#include <cstdint>
#include <map>
#include <mutex>
#include <vector>

#include <GL/glx.h>
#include <X11/Xutil.h>

namespace host::platform::x11 {

// Sizes in bits.
struct FormatSizes {
    int32_t isDoubleBuffered = 0;
    int32_t color = 0;
    int32_t alpha = 0;
    int32_t depth = 0;
    int32_t stencil = 0;
    int32_t sampleBuffers = 0;
    int32_t samples = 0;
    auto operator<=>(const FormatSizes &) const = default;
};

struct FbConfig {
    GLXFBConfig handle = nullptr;
    XVisualInfo visual{};
    FormatSizes sizes;
    bool hasCaveat = false;
};

class FbConfigs {
public:
    FbConfigs(Display *display, int screen) : m_display(display), m_screen(screen) {}

    // Good for windows and pixel buffers, TrueColor, at least as large as asked. Null when there is no such config.
    [[nodiscard]] const FbConfig *choose(const FormatSizes &wanted);

private:
    void read();

    Display *m_display;
    int m_screen;
    std::mutex m_mutex;
    bool m_isRead = false;
    std::vector<FbConfig> m_configs; // constant once read
    std::map<FormatSizes, const FbConfig *> m_chosen;
};

} // namespace host::platform::x11
