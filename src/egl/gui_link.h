// What joins the state and its link to a GUI: log lines go out, render modes come in.
#pragma once

#include <cstdint>

class UiLink;

namespace egl {

class State;

// From now on every log line is posted, and a GUI's render mode reaches the contexts. Once in the process.
void attachGuiLink(State &state);
// The link of the state. Only once it is attached.
[[nodiscard]] const UiLink &attachedLink();

// Tells the back ends of all contexts, also of those that were never bound: displays in key order, contexts in handle
// order. Runs on a thread of the link beside the application's, and holds no lock while it calls a back end.
void setRenderModeOfAll(uint8_t mode);

} // namespace egl
