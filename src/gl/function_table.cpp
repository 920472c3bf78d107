#include "gl/function_table.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>

namespace gl {

constinit thread_local FunctionTable *currentFunctions = &functionsWithoutContext;

FunctionTable &functionTableAt(void *context, FunctionTable::Ask ask) {
    struct Tables {
        std::mutex mutex;
        std::map<void *, std::unique_ptr<FunctionTable>> byContext; // guarded by mutex
    };
    static Tables &tables = *new Tables; // never destroyed: threads call entries while the process ends

    const std::lock_guard lock(tables.mutex);
    auto &table = tables.byContext[context];
    if (!table) {
        table.reset(new FunctionTable{.context = context, .ask = ask, .slots = {}});
        std::ranges::copy(functionsWithoutContext.slots, table->slots);
    }
    return *table;
}

} // namespace gl
