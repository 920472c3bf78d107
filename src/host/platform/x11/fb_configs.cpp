#include "host/platform/x11/fb_configs.h"

#include <cstdlib>
#include <memory>
#include <optional>
#include <tuple>

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

std::optional<FbConfig> describe(Display *display, GLXFBConfig handle, const Visuals &visuals) {
    const auto value = [&](int attribute) {
        int result = 0;
        glXGetFBConfigAttrib(display, handle, attribute, &result);
        return result;
    };
    constexpr int drawables = GLX_WINDOW_BIT | GLX_PBUFFER_BIT;
    const auto visual = visuals.find(static_cast<VisualID>(value(GLX_VISUAL_ID)));
    if (visual == visuals.end() || !(value(GLX_RENDER_TYPE) & GLX_RGBA_BIT)) return std::nullopt;
    if ((value(GLX_DRAWABLE_TYPE) & drawables) != drawables) return std::nullopt;
    return FbConfig{
        .handle = handle,
        .visual = visual->second,
        .sizes =
            {
                .isDoubleBuffered = value(GLX_DOUBLEBUFFER) ? 1 : 0,
                .color = value(GLX_RED_SIZE) + value(GLX_GREEN_SIZE) + value(GLX_BLUE_SIZE),
                .alpha = value(GLX_ALPHA_SIZE),
                .depth = value(GLX_DEPTH_SIZE),
                .stencil = value(GLX_STENCIL_SIZE),
                .sampleBuffers = value(GLX_SAMPLE_BUFFERS),
                .samples = value(GLX_SAMPLES),
            },
        .hasCaveat = value(GLX_CONFIG_CAVEAT) != GLX_NONE,
    };
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

} // namespace

void FbConfigs::read() {
    int count = 0;
    const std::unique_ptr<GLXFBConfig[], Free> handles(glXGetFBConfigs(m_display, m_screen, &count));
    const auto visuals = trueColorVisuals(m_display, m_screen);
    for (int i = 0; handles && i < count; ++i) {
        if (auto config = describe(m_display, handles[i], visuals)) m_configs.push_back(*config);
    }
}

const FbConfig *FbConfigs::choose(const FormatSizes &wanted) {
    const std::lock_guard lock(m_mutex);
    if (!m_isRead) read();
    m_isRead = true;
    const auto [chosen, isNew] = m_chosen.try_emplace(wanted, nullptr);
    if (!isNew) return chosen->second;

    // What was asked for comes first: a window of another visual is drawn to through a child window.
    const VisualID defaultVisual = XVisualIDFromVisual(DefaultVisual(m_display, m_screen));
    const int defaultDepth = DefaultDepth(m_display, m_screen);
    const auto rank = [&](const FbConfig &config) {
        return std::tuple(config.sizes.isDoubleBuffered != wanted.isDoubleBuffered,
                          std::abs(sampleCount(config.sizes) - sampleCount(wanted)), config.hasCaveat,
                          config.visual.depth != defaultDepth, config.visual.visualid != defaultVisual,
                          bits(config.sizes));
    };
    for (const auto &config : m_configs) {
        if (!isLargeEnough(config.sizes, wanted)) continue;
        if (!chosen->second || rank(config) < rank(*chosen->second)) chosen->second = &config;
    }
    return chosen->second;
}

} // namespace host::platform::x11
