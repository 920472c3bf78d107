#include "egl/standard/host_fence.h"

#include "egl/state.h"
#include "foundation/gl_types.h"

namespace egl::standard {

namespace {

void flush(const Context &context) {
    const auto glFlush = reinterpret_cast<void (*)()>(context.getExtProcAddress("glFlush"));
    if (glFlush) glFlush();
}

} // namespace

std::unique_ptr<HostFence> HostFence::create(Context &current) {
    const host::EGL &host = state().hostEGL();
    if (!host.glFenceSync || !host.glClientWaitSync || !host.glDeleteSync) return nullptr;
    const auto fence = host.glFenceSync(GL_SYNC_GPU_COMMANDS_COMPLETE, 0);
    if (!fence) return nullptr;
    // Flushes, since another context may wait for the fence before this one flushes later commands.
    flush(current);
    return std::unique_ptr<HostFence>(new HostFence(current, fence));
}

HostFence::HostFence(Context &current, host::EGL::Sync fence)
    : m_host(state().hostEGL()), m_group(current), m_fence(fence) {}

HostFence::~HostFence() {
    m_group.run([this] { m_host.glDeleteSync(m_fence); });
}

bool HostFence::wait(uint64_t timeoutNs) {
    uint32_t result = GL_ALREADY_SIGNALED;
    m_group.run([&] { result = m_host.glClientWaitSync(m_fence, 0, timeoutNs); });
    return result == GL_ALREADY_SIGNALED || result == GL_CONDITION_SATISFIED;
}

void HostFence::waitOnHost() {
    if (m_group.isSharedWithCurrent() && m_host.glWaitSync) {
        m_host.glWaitSync(m_fence, 0, GL_TIMEOUT_IGNORED);
    } else {
        static_cast<void>(wait(GL_TIMEOUT_IGNORED));
    }
}

} // namespace egl::standard
