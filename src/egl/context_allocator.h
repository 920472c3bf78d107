// Memory of contexts. GL proxies identify a context by its address and reuse a dead one's functions for the next at
// that address, so memory is reused only within one back end: ES 1 functions never reach an ES 2 context.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <mutex>
#include <vector>

#include "foundation/address_sanitizer.h"

namespace egl {

enum class BackEndKind { Es1, Es2, Desktop };

// For std::allocate_shared, which allocates one object at a time. Any thread.
template <typename Object>
class ContextAllocator {
public:
    using value_type = Object;

    explicit ContextAllocator(BackEndKind kind) : m_kind(kind) {}
    template <typename Other>
    ContextAllocator(const ContextAllocator<Other> &other) : m_kind(other.kind()) {}

    [[nodiscard]] Object *allocate(size_t count) {
        Pool &pool = poolOf(m_kind);
        const std::lock_guard lock(pool.mutex);
        if (count != 1 || pool.free.empty()) return std::allocator<Object>().allocate(count);
        Object *memory = pool.free.back();
        pool.free.pop_back();
        ASAN_UNPOISON_MEMORY_REGION(memory, sizeof(Object));
        return memory;
    }

    // Kept for the next context of the kind and never freed.
    void deallocate(Object *memory, size_t) {
        Pool &pool = poolOf(m_kind);
        const std::lock_guard lock(pool.mutex);
        pool.free.push_back(memory);
        // Lets the address sanitizer report uses of a dead context.
        ASAN_POISON_MEMORY_REGION(memory, sizeof(Object));
    }

    [[nodiscard]] BackEndKind kind() const { return m_kind; }
    bool operator==(const ContextAllocator &) const = default;

private:
    struct Pool {
        std::mutex mutex;
        std::vector<Object *> free;
    };

    // Never destroyed: contexts may end after static destruction has begun.
    static Pool &poolOf(BackEndKind kind) {
        static auto &pools = *new std::array<Pool, 3>;
        return pools[static_cast<size_t>(kind)];
    }

    BackEndKind m_kind;
};

} // namespace egl
