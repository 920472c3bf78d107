#include "host/platform/x11/fb_configs.h"

#include "host/platform/x11/glx.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <tuple>

#include "host/platform/x11/server_configs.h"

namespace host::platform::x11 {

namespace {

struct Free {
    void operator()(void *memory) const { XFree(memory); }
};

using Visuals = std::map<VisualID, XVisualInfo>;

Visuals trueColorVisuals(Display *display, int screen) {
    XVisualInfo wanted{};
    wanted.screen = screen;
    wanted.c_class = TrueColor;
    int count = 0;
    const std::unique_ptr<XVisualInfo[], Free> found(
        XGetVisualInfo(display, VisualScreenMask | VisualClassMask, &wanted, &count));
    Visuals visuals;
    for (int i = 0; i < count; ++i)
        visuals[found[i].visualid] = found[i];
    return visuals;
}

// Bits of EGL_SURFACE_TYPE; windows require a visual.
int32_t drawableTypes(int glxTypes, bool hasVisual) {
    constexpr int32_t pbuffer = 1, pixmap = 2, window = 4;
    return (glxTypes & GLX_PBUFFER_BIT ? pbuffer : 0) | (glxTypes & GLX_PIXMAP_BIT ? pixmap : 0) |
           (hasVisual && glxTypes & GLX_WINDOW_BIT ? window : 0);
}

int askGlx(Display *display, GLXFBConfig handle, int attribute) {
    int value = 0;
    glx().fbConfigAttrib(display, handle, attribute, &value);
    return value;
}

// row: the config's row in the server's list, if it is known.
std::optional<FbConfig> describe(Display *display, GLXFBConfig handle, ServerConfigs::Row row, const Visuals &visuals) {
    const auto value = [&](int attribute) { return row ? row.value(attribute) : askGlx(display, handle, attribute); };
    const auto visualId = static_cast<VisualID>(value(GLX_VISUAL_ID));
    const auto visual = visuals.find(visualId);
    const bool hasVisual = visual != visuals.end();
    // Configs with a visual of another class than TrueColor are left out.
    if ((!hasVisual && visualId) || !(value(GLX_RENDER_TYPE) & GLX_RGBA_BIT)) return std::nullopt;
    const ChannelSizes channels{value(GLX_RED_SIZE), value(GLX_GREEN_SIZE), value(GLX_BLUE_SIZE)};
    return FbConfig{
        .handle = handle,
        .visual = hasVisual ? visual->second : XVisualInfo{},
        .sizes =
            {
                .isDoubleBuffered = value(GLX_DOUBLEBUFFER) ? 1 : 0,
                .color = channels.red + channels.green + channels.blue,
                .alpha = value(GLX_ALPHA_SIZE),
                .depth = value(GLX_DEPTH_SIZE),
                .stencil = value(GLX_STENCIL_SIZE),
                .sampleBuffers = value(GLX_SAMPLE_BUFFERS),
                .samples = value(GLX_SAMPLES),
            },
        .channels = channels,
        .drawableTypes = drawableTypes(value(GLX_DRAWABLE_TYPE), hasVisual),
        .hasCaveat = value(GLX_CONFIG_CAVEAT) != GLX_NONE,
        .copiesAtSwap = value(GLX_SWAP_METHOD_OML) == GLX_SWAP_COPY_OML,
    };
}

bool isForWindowsAndPbuffers(const FbConfig &config) {
    constexpr int32_t both = 1 | 4;
    return (config.drawableTypes & both) == both;
}

bool isLargeEnough(const FormatSizes &sizes, const FormatSizes &wanted) {
    return sizes.color >= wanted.color && sizes.alpha >= wanted.alpha && sizes.depth >= wanted.depth &&
           sizes.stencil >= wanted.stencil;
}

int sampleCount(const FormatSizes &sizes) {
    return sizes.sampleBuffers > 0 ? sizes.samples : 0;
}

int bits(const FormatSizes &sizes) {
    return sizes.color + sizes.alpha + sizes.depth + sizes.stencil;
}

// A missing bit costs more than a surplus bit.
int distance(int have, int want) {
    return have < want ? (want - have) * 64 : have - want;
}

int distance(const FbConfig &config, const FormatSizes &wanted, const ChannelSizes &channels) {
    return distance(config.channels.red, channels.red) + distance(config.channels.green, channels.green) +
           distance(config.channels.blue, channels.blue) + distance(config.sizes.alpha, wanted.alpha) +
           distance(config.sizes.depth, wanted.depth) + distance(config.sizes.stencil, wanted.stencil) +
           distance(sampleCount(config.sizes), sampleCount(wanted)) * 16;
}

// Orders configs of equal sizes: a lower value is preferred.
auto preference(const FbConfig &config, const FormatSizes &wanted, Display *display, int screen) {
    return std::tuple(config.sizes.isDoubleBuffered != wanted.isDoubleBuffered, config.hasCaveat,
                      config.visual.depth != DefaultDepth(display, screen),
                      config.visual.visualid != XVisualIDFromVisual(DefaultVisual(display, screen)));
}

} // namespace

void FbConfigs::read() {
    int count = 0;
    const std::unique_ptr<GLXFBConfig[], Free> handles(glx().fbConfigs(m_display, m_screen, &count));
    const auto visuals = trueColorVisuals(m_display, m_screen);
    const ServerConfigs server(m_display, m_screen);
    for (int i = 0; handles && i < count; ++i) {
        const auto row = server.find(static_cast<uint32_t>(i), askGlx(m_display, handles[i], GLX_FBCONFIG_ID));
        if (auto config = describe(m_display, handles[i], row, visuals)) m_configs.push_back(*config);
    }
}

const std::vector<FbConfig> &FbConfigs::configs() {
    std::call_once(m_readOnce, [this] { read(); });
    return m_configs;
}

const FbConfig *FbConfigs::choose(const FormatSizes &wanted) {
    const auto &configs = this->configs();
    const std::lock_guard lock(m_mutex);
    const auto [chosen, isNew] = m_chosen.try_emplace(wanted, nullptr);
    if (!isNew) return chosen->second;

    // The requested buffering and samples precede the visual, since a window of another visual is drawn to through a
    // child.
    const auto rank = [&](const FbConfig &config) {
        const auto [isOtherBuffering, hasCaveat, isOtherDepth, isOtherVisual] =
            preference(config, wanted, m_display, m_screen);
        return std::tuple(isOtherBuffering, std::abs(sampleCount(config.sizes) - sampleCount(wanted)), hasCaveat,
                          isOtherDepth, isOtherVisual, bits(config.sizes));
    };
    for (const auto &config : configs) {
        if (!isForWindowsAndPbuffers(config) || !isLargeEnough(config.sizes, wanted)) continue;
        if (!chosen->second || rank(config) < rank(*chosen->second)) chosen->second = &config;
    }
    return chosen->second;
}

const FbConfig *FbConfigs::chooseFitting(const FormatSizes &wanted, const ChannelSizes &channels, bool exactly) {
    const FbConfig *chosen = nullptr;
    const auto rank = [&](const FbConfig &config) {
        return std::tuple(distance(config, wanted, channels), !isForWindowsAndPbuffers(config),
                          preference(config, wanted, m_display, m_screen));
    };
    for (const auto &config : configs()) {
        if (exactly && distance(config, wanted, channels) != 0) continue;
        if (!chosen || rank(config) < rank(*chosen)) chosen = &config;
    }
    return chosen;
}

} // namespace host::platform::x11
