// Wireframe drawing, and the marker that is sent to a GUI for a frame with draws.
#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>

// The render mode of a context. Used on the context's own thread.
struct RenderMode {
    bool wantsWireframe = false; // for this context only
    bool isWireframe = false;    // the mode set on the host
    bool isWatched = false;      // a GUI was attached at the last bind, and may have left since
};

// 1 for wireframe in every context, 0 for none; other modes count as 0. Takes effect at each context's next draw. Any
// thread.
void setRenderMode(uint8_t mode);

// Called at each bind: checks for a GUI, which connects before the first context or never.
void lookForGui(RenderMode &mode);

// Written on the link's thread while GL calls run on others; read by beginDraw().
extern constinit std::atomic<bool> isWireframeEverywhere;

// Called before a draw if the mode changes or a GUI is attached: sets the mode on the host and sends a marker once a
// frame.
void applyRenderMode(RenderMode &mode);

// Called before every draw.
inline void beginDraw(RenderMode &mode) {
    const bool isWanted = mode.wantsWireframe || isWireframeEverywhere.load(std::memory_order_relaxed);
    if (isWanted != mode.isWireframe || mode.isWatched) [[unlikely]]
        applyRenderMode(mode);
}

// The debug entries that switch wireframe drawing, or null: zvToggleWireframe and Zelvane_ToggleWireframe for every
// context, zvSetContextWireframe for the current one. A context draws wireframes if either requests it.
[[nodiscard]] void *findWireframeSwitch(std::string_view name);

// The mode of the calling thread's context of this back end, or null without one.
[[nodiscard]] RenderMode *currentRenderMode();
