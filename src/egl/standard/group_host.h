// Access to a share group's host objects, from threads that have none of its contexts current.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "egl/context.h"

namespace egl::standard {

class GroupHost {
public:
    // Any context of the group. The context may end before this does.
    explicit GroupHost(const Context &member);

    // Runs the action with a context of the group current on the host. False, without running it, when none is left.
    bool run(const std::function<void()> &action) const;
    [[nodiscard]] bool isSharedWithCurrent() const;

private:
    const std::shared_ptr<ContextGroup> m_group;
    const std::shared_ptr<const Config> m_config;
    const std::weak_ptr<glove::GLContext> m_member;
    const int32_t m_legacy;
};

} // namespace egl::standard
