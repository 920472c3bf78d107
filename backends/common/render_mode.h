// Wireframe drawing, and the marker that a GUI gets for a frame that draws.
#pragma once

#include <cstdint>
#include <string_view>

// What a context knows of it. Used on the context's own thread.
struct Wireframe {
    bool isWanted = false; // for this context alone
    bool isOn = false;     // what the host has been told
};

// 1 for wireframe in every context, 0 for none; other modes mean none. Takes effect at each context's next draw. Any
// thread.
void setRenderMode(uint8_t mode);

// Before every draw: brings the host to the wanted mode, and posts a marker once a frame while a GUI is attached.
void beginDraw(Wireframe &wireframe);

// The debug entries that switch wireframe drawing, or null: zvToggleWireframe and Zelvane_ToggleWireframe for every
// context, zvSetContextWireframe for the current one. A context draws wireframes while either asks for it.
[[nodiscard]] void *findWireframeSwitch(std::string_view name);

// That of the calling thread's context of this back end, or null without one.
[[nodiscard]] Wireframe *currentWireframe();
