#include "egl/standard/host_fence.h"

#include "egl/state.h"

namespace egl::standard {

namespace {

constexpr uint32_t glCommandsComplete = 0x9117;
constexpr uint32_t glAlreadySignaled = 0x911A;
constexpr uint32_t glConditionSatisfied = 0x911C;
constexpr uint64_t glTimeoutIgnored = ~uint64_t{0};

void flush(const Context &context) {
    const auto glFlush = reinterpret_cast<void (*)()>(context.getExtProcAddress("glFlush"));
    if (glFlush) glFlush();
}

} // namespace

std::unique_ptr<HostFence> HostFence::create(Context &current) {
    const host::EGL &host = state().hostEGL();
    if (!host.glFenceSync || !host.glClientWaitSync || !host.glDeleteSync) return nullptr;
    const auto fence = host.glFenceSync(glCommandsComplete, 0);
    if (!fence) return nullptr;
    // Another context may wait for it before this one draws again.
    flush(current);
    return std::unique_ptr<HostFence>(new HostFence(current, fence));
}

HostFence::HostFence(Context &current, host::EGL::Sync fence)
    : m_host(state().hostEGL()), m_group(current), m_fence(fence) {}

HostFence::~HostFence() {
    m_group.run([this] { m_host.glDeleteSync(m_fence); });
}

bool HostFence::wait(uint64_t timeoutNs) {
    uint32_t result = glAlreadySignaled;
    m_group.run([&] { result = m_host.glClientWaitSync(m_fence, 0, timeoutNs); });
    return result == glAlreadySignaled || result == glConditionSatisfied;
}

void HostFence::waitOnHost() {
    if (m_group.isSharedWithCurrent() && m_host.glWaitSync) {
        m_host.glWaitSync(m_fence, 0, glTimeoutIgnored);
    } else {
        static_cast<void>(wait(glTimeoutIgnored));
    }
}

} // namespace egl::standard
