#include "egl/standard/syncs.h"

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <utility>

#include "egl/context.h"
#include "egl/entry_frame.h"
#include "egl/standard/host_fence.h"
#include "foundation/attribute_list.h"

namespace egl::standard {

// The host stores a fence's state. A reusable sync stores its own.
class Sync {
public:
    explicit Sync(std::unique_ptr<HostFence> fence) : m_fence(std::move(fence)) {}

    [[nodiscard]] HostFence *fence() const { return m_fence.get(); }
    [[nodiscard]] EGLAttrib type() const { return m_fence ? EGL_SYNC_FENCE : EGL_SYNC_REUSABLE_KHR; }

    void set(bool isSignaled) {
        {
            const std::lock_guard lock(m_mutex);
            m_isSignaled = isSignaled;
            if (isSignaled) ++m_signals;
        }
        m_changed.notify_all();
    }

    // Destroying a sync ends the waits of all threads.
    void endWaits() {
        if (!m_fence) set(true);
    }

    [[nodiscard]] bool wait(EGLTime timeoutNs) {
        if (m_fence) return m_fence->wait(timeoutNs);
        std::unique_lock lock(m_mutex);
        const uint64_t before = m_signals;
        const auto isOver = [&] { return m_isSignaled || m_signals != before; };
        if (timeoutNs == EGL_FOREVER) {
            m_changed.wait(lock, isOver);
            return true;
        }
        // Longer timeouts exceed the clock's range and count as EGL_FOREVER.
        constexpr EGLTime year = EGLTime{366} * 24 * 3600 * 1'000'000'000;
        return m_changed.wait_for(lock, std::chrono::nanoseconds(std::min(timeoutNs, year)), isOver);
    }

private:
    const std::unique_ptr<HostFence> m_fence;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_isSignaled = false;
    uint64_t m_signals = 0; // counts signals, so that a wait ends even if the sync is unsignaled at once
};

void clearSyncs(Syncs &syncs) {
    for (const auto &[handle, sync] : syncs.takeAll())
        sync->endWaits();
}

EGLSync createSync(Display &display, EGLenum type, const EGLAttrib *attributes, EGLint unknownType) {
    const bool isFence = type == EGL_SYNC_FENCE;
    if (!isFence && type != EGL_SYNC_REUSABLE_KHR) return fail(unknownType, EGL_NO_SYNC);
    if (!AttributeList(attributes).isEmpty()) return fail(EGL_BAD_ATTRIBUTE, EGL_NO_SYNC);
    std::unique_ptr<HostFence> fence;
    if (isFence) {
        if (!threadRecord.current || &display != threadRecord.currentDisplay) return fail(EGL_BAD_MATCH, EGL_NO_SYNC);
        fence = HostFence::create(*threadRecord.current);
        if (!fence) return fail(EGL_BAD_ALLOC, EGL_NO_SYNC);
    }
    return succeed(display.standardSyncs.insert(std::make_shared<Sync>(std::move(fence))));
}

EGLBoolean destroySync(Display &display, EGLSync handle) {
    const auto sync = display.standardSyncs.take(handle);
    if (!sync) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
    sync->endWaits();
    return succeed(EGL_TRUE);
}

EGLint clientWaitSync(Display &display, EGLSync handle, EGLint flags, EGLTime timeoutNs) {
    const auto sync = display.standardSyncs.find(handle);
    if (!sync) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
    const Context *current = threadRecord.current;
    if (flags & EGL_SYNC_FLUSH_COMMANDS_BIT && current) {
        const auto glFlush = reinterpret_cast<void (*)()>(current->getExtProcAddress("glFlush"));
        if (glFlush) glFlush();
    }
    return succeed<EGLint>(sync->wait(timeoutNs) ? EGL_CONDITION_SATISFIED : EGL_TIMEOUT_EXPIRED);
}

EGLBoolean waitSync(Display &display, EGLSync handle, EGLint flags) {
    const auto sync = display.standardSyncs.find(handle);
    if (!sync || flags) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
    // Only the host can wait asynchronously, and it has no reusable syncs.
    if (!threadRecord.current || !sync->fence()) return fail(EGL_BAD_MATCH, EGL_FALSE);
    sync->fence()->waitOnHost();
    return succeed(EGL_TRUE);
}

EGLBoolean getSyncAttrib(Display &display, EGLSync handle, EGLint attribute, EGLAttrib *value) {
    const auto sync = display.standardSyncs.find(handle);
    if (!sync || !value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
    switch (attribute) {
    case EGL_SYNC_TYPE:
        *value = sync->type();
        return succeed(EGL_TRUE);
    case EGL_SYNC_STATUS:
        *value = sync->wait(0) ? EGL_SIGNALED : EGL_UNSIGNALED;
        return succeed(EGL_TRUE);
    case EGL_SYNC_CONDITION:
        if (!sync->fence()) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        *value = EGL_SYNC_PRIOR_COMMANDS_COMPLETE;
        return succeed(EGL_TRUE);
    default:
        return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
    }
}

EGLBoolean EGLAPIENTRY signalSync(EGLDisplay dpy, EGLSync handle, EGLenum mode) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        const auto sync = display.standardSyncs.find(handle);
        if (!sync) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        if (sync->fence()) return fail(EGL_BAD_MATCH, EGL_FALSE);
        if (mode != EGL_SIGNALED && mode != EGL_UNSIGNALED) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        sync->set(mode == EGL_SIGNALED);
        return succeed(EGL_TRUE);
    });
}

} // namespace egl::standard
