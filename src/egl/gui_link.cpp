#include "egl/gui_link.h"

#include "egl/context.h"
#include "egl/state.h"
#include "foundation/log.h"

namespace egl {

namespace {

// Never destroyed: threads log and take render modes while the process ends.
struct Attached {
    std::mutex mutex;
    State *state = nullptr;       // guarded by mutex; null before and after its life
    const UiLink *link = nullptr; // constant once the listener is set
};

Attached &attached() {
    static Attached &instance = *new Attached;
    return instance;
}

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
    Attached &now = attached();
    const std::lock_guard lock(now.mutex);
    now.state = &state;
    now.link = new UiLink(state.uiLink());
    setLogListener(postLogLine);
}

void detachGuiLink() {
    const std::lock_guard lock(attached().mutex);
    attached().state = nullptr;
}

const UiLink &attachedLink() {
    return *attached().link;
}

void setRenderModeOfAll(uint8_t mode) {
    std::vector<std::shared_ptr<Context>> contexts;
    {
        const std::lock_guard lock(attached().mutex);
        if (attached().state) contexts = attached().state->contexts();
    }
    for (const auto &context : contexts)
        context->setRenderMode(mode);
}

} // namespace egl
