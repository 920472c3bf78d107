// Wireframe drawing, and the marker that a GUI gets for a frame that draws.
#pragma once

#include <atomic>
#include <cstdint>
#include <string_view>

// What a context knows of it. Used on the context's own thread.
struct RenderMode {
    bool wantsWireframe = false; // for this context alone
    bool isWireframe = false;    // what the host has been told
    bool isWatched = false;      // a GUI was attached at the last bind, and may have left since
};

// 1 for wireframe in every context, 0 for none; other modes mean none. Takes effect at each context's next draw. Any
// thread.
void setRenderMode(uint8_t mode);

// At each bind: looks for a GUI. It attaches before the first context or never.
void lookForGui(RenderMode &mode);

// Written on the link's thread, beside running GL calls; read by beginDraw().
extern constinit std::atomic<bool> isWireframeEverywhere;

// Before a draw that changes the mode or that a GUI watches: brings the host to the wanted mode and posts a marker once
// a frame.
void applyRenderMode(RenderMode &mode);

// Before every draw.
inline void beginDraw(RenderMode &mode) {
    const bool isWanted = mode.wantsWireframe || isWireframeEverywhere.load(std::memory_order_relaxed);
    if (isWanted != mode.isWireframe || mode.isWatched) [[unlikely]]
        applyRenderMode(mode);
}

// The debug entries that switch wireframe drawing, or null: zvToggleWireframe and Zelvane_ToggleWireframe for every
// context, zvSetContextWireframe for the current one. A context draws wireframes while either asks for it.
[[nodiscard]] void *findWireframeSwitch(std::string_view name);

// That of the calling thread's context of this back end, or null without one.
[[nodiscard]] RenderMode *currentRenderMode();
