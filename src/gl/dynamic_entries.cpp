#include "gl/dynamic_entries.h"

#if defined(__x86_64__) && defined(__ELF__)

#include <map>
#include <mutex>
#include <string>

#include "gl/entry_proxy.h"

// An entry for each dynamic slot, 32 bytes apart, and its resolver, 16 bytes apart. A resolver saves all registers that
// can hold arguments while it looks up the function.
static_assert(offsetof(gl::FunctionTable, slots) == 16 && gl::firstDynamicSlot == 665 && gl::dynamicNameCount == 512,
              "the numbers are written out below");
asm(R"(
    .text
    .p2align 5
    .type zelvane_dynamic_entries, @function
zelvane_dynamic_entries:
    .set slot, 665
    .rept 512
    .p2align 5
    movq zelvane_current_functions@gottpoff(%rip), %r11
    movq %fs:(%r11), %r11
    jmpq *(16 + 8 * slot)(%r11)
    .set slot, slot + 1
    .endr
    .size zelvane_dynamic_entries, . - zelvane_dynamic_entries

    .p2align 4
    .type zelvane_dynamic_resolvers, @function
zelvane_dynamic_resolvers:
    .set slot, 665
    .rept 512
    .p2align 4
    movl $slot, %r11d
    jmp zelvane_dynamic_resolve
    .set slot, slot + 1
    .endr
    .size zelvane_dynamic_resolvers, . - zelvane_dynamic_resolvers

    .p2align 4
    .type zelvane_dynamic_resolve, @function
zelvane_dynamic_resolve:
    .cfi_startproc
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    .irp register, rdi, rsi, rdx, rcx, r8, r9, rax
    pushq %\register
    .endr
    subq $136, %rsp
    .irp number, 0, 1, 2, 3, 4, 5, 6, 7
    movups %xmm\number, 16 * \number(%rsp)
    .endr
    movl %r11d, %edi
    call zelvane_resolve_dynamic_slot
    movq %rax, %r11
    .irp number, 0, 1, 2, 3, 4, 5, 6, 7
    movups 16 * \number(%rsp), %xmm\number
    .endr
    addq $136, %rsp
    .irp register, rax, r9, r8, rcx, rdx, rsi, rdi
    popq %\register
    .endr
    popq %rbp
    .cfi_def_cfa %rsp, 8
    jmpq *%r11
    .cfi_endproc
    .size zelvane_dynamic_resolve, . - zelvane_dynamic_resolve

    .p2align 4
    .type zelvane_nothing, @function
zelvane_nothing:
    xorl %eax, %eax
    xorps %xmm0, %xmm0
    ret
    .size zelvane_nothing, . - zelvane_nothing
)");

extern "C" {
extern const char zelvane_dynamic_entries[];
extern const char zelvane_dynamic_resolvers[];
void zelvane_nothing();
gl::Function zelvane_resolve_dynamic_slot(unsigned slot);
}

namespace gl {

namespace {

struct Names {
    std::mutex mutex;
    std::map<std::string, size_t, std::less<>> slots; // entries are never removed; guarded by mutex
    const char *bySlot[dynamicNameCount] = {};        // written before the entry is returned
};

Names &names() {
    static Names &instance = *new Names; // never destroyed: threads call entries while the process ends
    return instance;
}

Function at(const char *begin, size_t stride, size_t index) {
    return reinterpret_cast<Function>(reinterpret_cast<uintptr_t>(begin) + stride * index);
}

} // namespace

Function dynamicEntry(const char *name) {
    Names &all = names();
    const std::lock_guard lock(all.mutex);
    auto found = all.slots.find(name);
    if (found == all.slots.end()) {
        const size_t index = all.slots.size();
        if (index == dynamicNameCount) return nullptr;
        found = all.slots.emplace(name, index).first;
        all.bySlot[index] = found->first.c_str();
        openSlot(firstDynamicSlot + index, at(zelvane_dynamic_resolvers, 16, index));
    }
    return at(zelvane_dynamic_entries, 32, found->second);
}

} // namespace gl

// Called by the resolvers, with the slot of the entry.
gl::Function zelvane_resolve_dynamic_slot(unsigned slot) {
    const gl::GLEntryProxy proxy{gl::names().bySlot[slot - gl::firstDynamicSlot], slot};
    return gl::resolveEntry(proxy, zelvane_nothing);
}

#else

namespace gl {

Function dynamicEntry(const char *) {
    return nullptr;
}

} // namespace gl

#endif
