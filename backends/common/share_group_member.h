// A context's membership in its share group, which its members own together. Any thread.
#pragma once

#include <map>
#include <memory>
#include <mutex>

#include "common/never_destroyed.h"

template <typename Group>
class ShareGroupMember {
public:
    // share: the context to share with. A new group when share is null, has ended or belongs to another back end.
    ShareGroupMember(const void *context, const void *share) : m_context(context) {
        Table &all = table();
        const std::lock_guard lock(all.mutex);
        const auto found = all.groupOf.find(share);
        m_group = found == all.groupOf.end() ? std::make_shared<Group>() : found->second;
        all.groupOf[context] = m_group;
    }
    ~ShareGroupMember() {
        Table &all = table();
        const std::lock_guard lock(all.mutex);
        all.groupOf.erase(m_context);
    }
    ShareGroupMember(const ShareGroupMember &) = delete;
    ShareGroupMember &operator=(const ShareGroupMember &) = delete;

    [[nodiscard]] Group &operator*() const { return *m_group; }
    // For objects that outlive the context.
    [[nodiscard]] const std::shared_ptr<Group> &group() const { return m_group; }
    [[nodiscard]] Group *operator->() const { return m_group.get(); }

private:
    struct Table {
        std::mutex mutex;
        std::map<const void *, std::shared_ptr<Group>> groupOf; // by context; guarded by mutex
    };
    static Table &table() { return neverDestroyed<Table>(); }

    const void *m_context;
    std::shared_ptr<Group> m_group;
};
