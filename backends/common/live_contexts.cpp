#include "common/live_contexts.h"

#include <zelvane/back_end.h>

#include <atomic>
#include <mutex>
#include <set>

namespace {

// The number grows with each change, so that a thread knows when to look again.
struct LiveContexts {
    std::mutex mutex;
    std::set<const void *> contexts; // guarded by mutex
    std::atomic<uint64_t> changes = 1;
};

LiveContexts &liveContexts() {
    static LiveContexts live;
    return live;
}

} // namespace

void contextBegins(const void *esContext) {
    LiveContexts &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    live.contexts.insert(esContext);
    ++live.changes;
}

void contextEnds(const void *esContext) {
    LiveContexts &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    live.contexts.erase(esContext);
    ++live.changes;
}

void *currentLiveContext() {
    struct Answer {
        const void *asked = nullptr;
        uint64_t changes = 0;
        void *context = nullptr;
    };
    // Small enough for the block that every thread has from its start: drawing asks at each call.
    static constinit thread_local Answer last __attribute__((tls_model("initial-exec")));

    void *const asked = zvCurrentEsContext();
    LiveContexts &live = liveContexts();
    if (asked == last.asked && live.changes == last.changes) return last.context;
    const std::lock_guard lock(live.mutex);
    last = {asked, live.changes, live.contexts.contains(asked) ? asked : nullptr};
    return last.context;
}

bool isLiveContext(const void *esContext) {
    LiveContexts &live = liveContexts();
    const std::lock_guard lock(live.mutex);
    return live.contexts.contains(esContext);
}
