#include "gl/answer_map.h"

#include <memory>
#include <new>

namespace gl {

namespace {

constexpr uint32_t firstSlotCount = 4;

} // namespace

void AnswerMap::store(const egl::Context *context, Function answer) {
    if (const Slot *const slot = slotOf(context)) {
        const_cast<Slot *>(slot)->function.store(answer, std::memory_order_relaxed);
        return;
    }

    Table *const table = m_table.load(std::memory_order_relaxed);
    const uint32_t slotCount = table ? table->mask + 1 : 0;
    if (table && table->used < slotCount / 2) {
        insert(*table, keyOf(context), answer);
        return;
    }

    Table *const grown = makeTable(table ? slotCount * 2 : firstSlotCount, table);
    for (uint32_t index = 0; index < slotCount; ++index) {
        const Slot &slot = table->slots()[index];
        const uintptr_t key = slot.key.load(std::memory_order_relaxed);
        if (key != emptyKey) insert(*grown, key, slot.function.load(std::memory_order_relaxed));
    }
    insert(*grown, keyOf(context), answer);
    m_table.store(grown, std::memory_order_release);
}

AnswerMap::Table *AnswerMap::makeTable(uint32_t slotCount, Table *replaced) {
    void *const memory = ::operator new(sizeof(Table) + slotCount * sizeof(Slot));
    auto *const table = new (memory) Table{.mask = slotCount - 1, .replaced = replaced};
    std::uninitialized_value_construct_n(table->slots(), slotCount);
    return table;
}

void AnswerMap::insert(Table &table, uintptr_t key, Function answer) {
    uint32_t index = firstIndex(key);
    while (table.slots()[index & table.mask].key.load(std::memory_order_relaxed) != emptyKey)
        ++index;
    Slot &slot = table.slots()[index & table.mask];
    slot.function.store(answer, std::memory_order_relaxed);
    slot.key.store(key, std::memory_order_release);
    ++table.used;
}

} // namespace gl
