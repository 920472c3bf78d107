#include "libgl/entries.h"

#include <atomic>
#include <cstdint>

#include "foundation/resolver_code.h"

// A function has 32 bytes, each of its two resolvers 16. The number of a resolver is that of its slot, shifted left by
// one, with the lowest bit set for calls with an EGL context. Offset 0 refers to a word that is never null: until there
// is a word to follow, such calls are resolved each time.
// clang-format off
asm(R"(
    .macro follows
    movq libgl_context(%rip), %r11
    cmpq $0, %fs:(%r11)
    jne 1f
    jmpq *libgl_host_functions + 8 * slot(%rip)
1:  jmpq *libgl_egl_functions + 8 * slot(%rip)
    .endm
    .macro current
    follows
    .endm
    .macro passes
    jmpq *libgl_host_functions + 8 * slot(%rip)
    .endm
    .macro entry name, kind
    .p2align 5
    .globl \name
    .type \name, @function
\name:
    \kind
    .size \name, . - \name
    .set slot, slot + 1
    .endm

    .text
    .set slot, 0
    .p2align 5
libgl_entries:
)"
#define NAME(name, kind) "entry " #name ", " #kind "\n"
#include "libgl/data/names.def"
#undef NAME
R"(
    .rept 512
    .p2align 5
    follows
    .set slot, slot + 1
    .endr

    .set slot_count, slot
    .set slot, 0
    .p2align 4
libgl_resolvers:
    .rept 2 * slot_count
    .p2align 4
    movl $slot, %r11d
    jmp libgl_resolver
    .set slot, slot + 1
    .endr
)" RESOLVER_CODE("libgl_resolver", "libgl_resolve") NOTHING_CODE("libgl_nothing") R"(
    .globl libgl_nothing
    .hidden libgl_nothing

    .data
    .p2align 3
libgl_context:
    .quad 0
libgl_host_functions:
    .set slot, 0
    .rept slot_count
    .quad libgl_resolvers + 32 * slot
    .set slot, slot + 1
    .endr
libgl_egl_functions:
    .set slot, 0
    .rept slot_count
    .quad libgl_resolvers + 32 * slot + 16
    .set slot, slot + 1
    .endr
    .text
)");
// clang-format on

extern "C" {
extern const char libgl_entries[];
extern ptrdiff_t libgl_context;
extern libgl::Function libgl_host_functions[];
extern libgl::Function libgl_egl_functions[];
}

namespace libgl {

static_assert(unnamedSlots == 512, "the number is written out above");

Function entry(size_t slot) {
    return reinterpret_cast<Function>(reinterpret_cast<uintptr_t>(libgl_entries) + 32 * slot);
}

void follow(ptrdiff_t context) {
    std::atomic_ref(libgl_context).store(context, std::memory_order_release);
}

bool isReady() {
    return std::atomic_ref(libgl_context).load(std::memory_order_acquire) != 0;
}

void keepHostFunction(size_t slot, Function function) {
    std::atomic_ref(libgl_host_functions[slot]).store(function, std::memory_order_release);
}

void keepEglFunction(size_t slot, Function function) {
    std::atomic_ref(libgl_egl_functions[slot]).store(function, std::memory_order_release);
}

} // namespace libgl
