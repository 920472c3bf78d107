#include "egl/standard/group_host.h"

#include "egl/thread_record.h"

namespace egl::standard {

namespace {

std::weak_ptr<glove::GLContext> hostContextOf(const Context &context) {
    const auto handle = context.hostContext();
    return handle ? handle->context : nullptr;
}

} // namespace

GroupHost::GroupHost(const Context &member)
    : m_group(member.group), m_config(member.config), m_member(hostContextOf(member)),
      m_legacy(member.attribs.legacyClient) {}

bool GroupHost::isSharedWithCurrent() const {
    const Context *current = threadRecord.current;
    return current && current->group == m_group;
}

bool GroupHost::run(const std::function<void()> &action) const {
    if (isSharedWithCurrent()) {
        action();
        return true;
    }
    const std::lock_guard lock(m_group->helperMutex);
    if (!m_group->helper) {
        const auto member = m_member.lock();
        if (!member) return false;
        m_group->helper =
            host::createHostContext({.format = m_config->hostConfig() ? m_config->hostConfig()->format() : nullptr,
                                     .legacy = m_legacy,
                                     .share = member});
    }
    const host::BorrowedBinding binding(*m_group->helper);
    if (!binding.isCurrent()) return false;
    action();
    return true;
}

} // namespace egl::standard
