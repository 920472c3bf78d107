#include "egl/gui_link.h"

#include <atomic>

#include "egl/context.h"
#include "egl/state.h"
#include "foundation/log.h"

namespace egl {

namespace {

// Null until the state is created.
constinit std::atomic<State *> attachedState = nullptr;

ui::messages::Message logLine(int32_t level, const char *text) {
    switch (level) {
    case LogInfo:
        return ui::messages::logInfo(text);
    case LogWarning:
        return ui::messages::logWarning(text);
    default:
        return ui::messages::logError(text);
    }
}

void postLogLine(int32_t level, const char *text) {
    attachedLink().post(logLine(level, text));
}

} // namespace

void attachGuiLink(State &state) {
    attachedState = &state;
    setLogListener(postLogLine);
}

const UiLink &attachedLink() {
    return attachedState.load(std::memory_order_relaxed)->uiLink();
}

void setRenderModeOfAll(uint8_t mode) {
    State *const state = attachedState;
    if (!state) return;
    for (const auto &context : state->contexts())
        context->setRenderMode(mode);
}

} // namespace egl
