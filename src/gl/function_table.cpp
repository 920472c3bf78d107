#include "gl/function_table.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>

namespace gl {

constinit thread_local FunctionTable *currentFunctions = &functionsWithoutContext;

constinit Recorder recorder = nullptr;

namespace {

struct Tables {
    std::mutex mutex; // guards the map, and the dynamic slots of the table without a context
    std::map<void *, std::unique_ptr<FunctionTable>> byContext;
};

Tables &tables() {
    static Tables &instance = *new Tables; // never destroyed: threads call entries while the process ends
    return instance;
}

} // namespace

void openSlot(size_t slot, Function resolver) {
    const std::lock_guard lock(tables().mutex);
    std::atomic_ref(functionsWithoutContext.slots[slot]).store(resolver, std::memory_order_relaxed);
    for (const auto &[context, table] : tables().byContext)
        std::atomic_ref(table->slots[slot]).store(resolver, std::memory_order_relaxed);
}

FunctionTable &functionTableAt(void *context, FunctionTable::Ask ask, bool isRecorded) {
    const std::lock_guard lock(tables().mutex);
    auto &table = tables().byContext[context];
    if (!table) {
        table.reset(new FunctionTable{.context = context, .ask = ask, .slots = {}, .isRecorded = isRecorded});
        std::ranges::copy(functionsWithoutContext.slots, table->slots);
    }
    return *table;
}

} // namespace gl
