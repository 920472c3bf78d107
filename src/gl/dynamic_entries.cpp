#include "gl/dynamic_entries.h"

#if defined(__x86_64__) && defined(__ELF__)

#include <map>
#include <mutex>
#include <string>

#include "foundation/resolver_code.h"
#include "gl/entry_proxy.h"

// An entry for each dynamic slot, 32 bytes apart, and its resolver, 16 bytes apart.
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
)" RESOLVER_CODE("zelvane_dynamic_resolve", "zelvane_resolve_dynamic_slot") NOTHING_CODE("zelvane_nothing"));

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
