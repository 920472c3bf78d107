// The functions that the entries of one context jump to, a slot for each exposed name. A slot holds the name's resolver
// until the first call, then the back end's function, or a function that does nothing if the back end has none.
#pragma once

#include <atomic>
#include <cstddef>

namespace gl {

// Any function of a back end, called only as the type of its name.
using Function = void (*)();

inline constexpr size_t extensionNameCount = 226;
inline constexpr size_t baseNameCount = 439;
inline constexpr size_t firstDynamicSlot = extensionNameCount + baseNameCount;
inline constexpr size_t dynamicNameCount = 512; // for names that are in no table
inline constexpr size_t slotCount = firstDynamicSlot + dynamicNameCount;

struct FunctionTable {
    // The back end's function of this name for the context, or null.
    using Ask = Function (*)(void *context, const char *name);

    // Null in the table for threads without a current context, whose slots stay resolvers.
    void *const context = nullptr;
    const Ask ask = nullptr;
    Function slots[slotCount];
    const bool isRecorded = true; // whether the recorder receives its functions

    [[nodiscard, gnu::always_inline]] Function at(size_t slot) {
        return std::atomic_ref(slots[slot]).load(std::memory_order_relaxed);
    }
};

extern FunctionTable functionsWithoutContext;

// The calling thread's table. Statically initialised and trivially destructible, so that entries work at any time; the
// static model of thread-local storage makes reading it one load.
extern constinit thread_local FunctionTable *currentFunctions __asm__("zelvane_current_functions")
    __attribute__((tls_model("initial-exec")));

// Called with each function, or null, that a back end returns for a context; its result replaces a function. A null
// recorder keeps all functions. Set before the first context is created, and not changed afterwards.
using Recorder = Function (*)(const char *name, Function answer);
extern constinit Recorder recorder;

// The table of the context at that address. It is never freed: a context that is created at the address of a dead one
// inherits its functions. Any thread.
[[nodiscard]] FunctionTable &functionTableAt(void *context, FunctionTable::Ask ask, bool isRecorded = true);

// Sets a dynamic slot to its resolver in every table. Called before its entry is returned. Any thread.
void openSlot(size_t slot, Function resolver);

} // namespace gl
