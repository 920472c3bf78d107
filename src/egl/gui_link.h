// Connects the state with its link to a GUI: log lines are sent, render modes are received.
#pragma once

#include <cstdint>

class UiLink;

namespace egl {

class State;

// Starts posting every log line, and passing a GUI's render mode to the contexts. Called once in the process.
void attachGuiLink(State &state);
// The link of the state. Valid only once it is attached.
[[nodiscard]] const UiLink &attachedLink();

// Sets the mode in the back ends of all contexts, also of those that were never bound: displays in key order, contexts
// in handle order. Runs on a thread of the link, and holds no lock while it calls a back end.
void setRenderModeOfAll(uint8_t mode);

} // namespace egl
