// What each context answered for one name, by the address of the context.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace egl {
class Context;
}

namespace gl {

// Any entry of a back end; called only as the type that its name has.
using Function = void (*)();

// Only grows: a context that is made at the address of a dead one inherits its answers, which callers live with. Reads
// take no lock and may run beside store(). Constant-initialised and never destroyed, so that entries work before
// static construction and after destruction.
class AnswerMap {
public:
    // The stored function. Null when the stored answer is null, when nothing is stored, and for the null context.
    // Inlined into every entry: a call here would make each of them save its arguments.
    [[nodiscard, gnu::always_inline]] Function find(const egl::Context *context) const {
        const Slot *const slot = slotOf(context);
        return slot ? slot->function.load(std::memory_order_relaxed) : nullptr;
    }

    // Tells a stored null from no answer. The context must not be null.
    [[nodiscard]] std::optional<Function> answerOf(const egl::Context *context) const {
        const Slot *const slot = slotOf(context);
        return slot ? std::optional(slot->function.load(std::memory_order_relaxed)) : std::nullopt;
    }

    // Replaces the answer of a context that has one. One thread at a time; the context must not be null.
    void store(const egl::Context *context, Function answer);

private:
    // The key of an empty slot, which ends every search. No context has it, the null context neither: a slot that is
    // being filled shows its function first.
    static constexpr uintptr_t emptyKey = 1;

    struct Slot {
        std::atomic<uintptr_t> key = emptyKey;    // the address of the context
        std::atomic<Function> function = nullptr; // written before the key
    };

    // An open-addressing table, with its slots right behind it. At most half of them are full.
    struct Table {
        const uint32_t mask; // the number of slots, a power of two, less one
        uint32_t used = 0;   // read and written by store() alone
        Table *const replaced;

        [[nodiscard]] Slot *slots() { return reinterpret_cast<Slot *>(this + 1); }
        [[nodiscard]] const Slot *slots() const { return reinterpret_cast<const Slot *>(this + 1); }
    };
    static_assert(sizeof(Table) % alignof(Slot) == 0);

    // Null when the context has no slot, as the null context never does.
    [[nodiscard, gnu::always_inline]] const Slot *slotOf(const egl::Context *context) const {
        const Table *const table = m_table.load(std::memory_order_acquire);
        if (!table) return nullptr;
        for (uint32_t index = firstIndex(keyOf(context));; ++index) {
            const Slot &slot = table->slots()[index & table->mask];
            const uintptr_t key = slot.key.load(std::memory_order_acquire);
            if (key == keyOf(context)) return &slot;
            if (key == emptyKey) return nullptr;
        }
    }

    // Contexts are at least 16 bytes apart, often by a multiple of one size, so that their low bits alone say little.
    [[nodiscard]] static uint32_t firstIndex(uintptr_t key) {
        return static_cast<uint32_t>(key >> 4) * 0x9e3779b1u >> 16;
    }

    [[nodiscard]] static uintptr_t keyOf(const egl::Context *context) { return reinterpret_cast<uintptr_t>(context); }

    [[nodiscard]] static Table *makeTable(uint32_t slotCount, Table *replaced);
    static void insert(Table &table, uintptr_t key, Function answer);

    // Readers may still be in a table that was replaced, so that all stay, linked from the newest: at most twice the
    // memory.
    std::atomic<Table *> m_table = nullptr;
};

} // namespace gl
