// The framebuffer configs of one screen, and how one is chosen for an attribute list. Read once, since the first query
// costs tens of milliseconds. Any thread.
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

struct ChannelSizes {
    int32_t red = 0;
    int32_t green = 0;
    int32_t blue = 0;
    bool operator==(const ChannelSizes &) const = default;
};

struct FbConfig {
    GLXFBConfig handle = nullptr;
    XVisualInfo visual{}; // with id 0 where windows cannot be drawn to
    FormatSizes sizes;
    ChannelSizes channels;
    int32_t drawableTypes = 0; // bits of EGL_SURFACE_TYPE
    bool hasCaveat = false;
    bool copiesAtSwap = false; // so the back buffer keeps its contents
};

class FbConfigs {
public:
    FbConfigs(Display *display, int screen) : m_display(display), m_screen(screen) {}

    // A config for windows and pixel buffers, TrueColor, at least as large as requested. Null when there is none.
    [[nodiscard]] const FbConfig *choose(const FormatSizes &wanted);
    // The config that is nearest to these sizes; among equals, configs that support windows win. Null when an exact
    // match is required and no config has one.
    [[nodiscard]] const FbConfig *chooseFitting(const FormatSizes &wanted, const ChannelSizes &channels, bool exactly);

private:
    const std::vector<FbConfig> &configs(); // read at the first call
    void read();

    Display *m_display;
    int m_screen;
    std::once_flag m_readOnce;
    std::vector<FbConfig> m_configs; // constant once read
    std::mutex m_mutex;
    std::map<FormatSizes, const FbConfig *> m_chosen; // guarded by m_mutex
};

} // namespace host::platform::x11
