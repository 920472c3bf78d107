// The functions that the entries of one context jump to, a slot for each exposed name. A slot holds the name's resolver
// until the first call, then what the back end answered, or a function that does nothing where it has none.
#pragma once

#include <atomic>
#include <cstddef>

namespace gl {

// Any entry of a back end; called only as the type that its name has.
using Function = void (*)();

inline constexpr size_t extensionNameCount = 226;
inline constexpr size_t baseNameCount = 439;
inline constexpr size_t firstDynamicSlot = extensionNameCount + baseNameCount;
inline constexpr size_t dynamicNameCount = 512; // of names that the tables lack
inline constexpr size_t slotCount = firstDynamicSlot + dynamicNameCount;

struct FunctionTable {
    // The back end's function of this name for the context, or null.
    using Ask = Function (*)(void *context, const char *name);

    // Null in the table of threads without a current context, whose slots stay resolvers.
    void *const context = nullptr;
    const Ask ask = nullptr;
    Function slots[slotCount];

    [[nodiscard, gnu::always_inline]] Function at(size_t slot) {
        return std::atomic_ref(slots[slot]).load(std::memory_order_relaxed);
    }
};

extern FunctionTable functionsWithoutContext;

// The calling thread's table. Statically initialised and trivially destructible, so that entries work at any time; the
// static model of thread-local storage makes reading it one load.
extern constinit thread_local FunctionTable *currentFunctions __asm__("zelvane_current_functions")
    __attribute__((tls_model("initial-exec")));

// Puts a function of its own before each that a back end answers for a context, and may be told of null answers; null
// keeps the answers as they are. Set before the first context is made, and not changed afterwards.
using Recorder = Function (*)(const char *name, Function answer);
extern constinit Recorder recorder;

// The table of the context at that address. It stays for good: a context that is made at the address of a dead one
// inherits its answers. Any thread.
[[nodiscard]] FunctionTable &functionTableAt(void *context, FunctionTable::Ask ask);

// Gives a dynamic slot its resolver in every table. Before its entry is handed out. Any thread.
void openSlot(size_t slot, Function resolver);

} // namespace gl
