#include "journal/recording_thunks.h"

#include <cstddef>

#if defined(__x86_64__) && defined(__ELF__)

static_assert(offsetof(journal::SavedCall, floatCount) == 136 && offsetof(journal::SavedCall, integers) == 144 &&
                  offsetof(journal::SavedCall, callerRbx) == 200 && offsetof(journal::SavedCall, stack) == 224 &&
                  journal::thunkCount == 4096,
              "the numbers are written out below");

// A thunk for each number, 16 bytes apart. Thunks save all registers that can hold arguments as a SavedCall below the
// frame pointer, and copy sixteen words of the caller's stack for the function: more than any GL function has.
asm(R"(
    .text
    .p2align 4
    .type zelvane_recording_thunks, @function
zelvane_recording_thunks:
    .set number, 0
    .rept 4096
    .p2align 4
    movl $number, %r11d
    jmp zelvane_record_call
    .set number, number + 1
    .endr
    .size zelvane_recording_thunks, . - zelvane_recording_thunks

    .p2align 4
    .type zelvane_record_call, @function
zelvane_record_call:
    .cfi_startproc
    pushq %rbp
    .cfi_def_cfa_offset 16
    .cfi_offset %rbp, -16
    movq %rsp, %rbp
    .cfi_def_cfa_register %rbp
    subq $336, %rsp
    movq %rbx, -8(%rbp)
    .cfi_offset %rbx, -24
    movl %r11d, %ebx
    .irp index, 0, 1, 2, 3, 4, 5, 6, 7
    movups %xmm\index, 16 * \index - 208(%rbp)
    .endr
    movq %rax, -72(%rbp)
    movq %rdi, -64(%rbp)
    movq %rsi, -56(%rbp)
    movq %rdx, -48(%rbp)
    movq %rcx, -40(%rbp)
    movq %r8, -32(%rbp)
    movq %r9, -24(%rbp)
    movl %ebx, %edi
    leaq -208(%rbp), %rsi
    call zelvane_begin_call
    movq %rax, %r11
    .set word, 0
    .rept 16
    movq 16 + 8 * word(%rbp), %r10
    movq %r10, 8 * word(%rsp)
    .set word, word + 1
    .endr
    .irp index, 0, 1, 2, 3, 4, 5, 6, 7
    movups 16 * \index - 208(%rbp), %xmm\index
    .endr
    movq -72(%rbp), %rax
    movq -64(%rbp), %rdi
    movq -56(%rbp), %rsi
    movq -48(%rbp), %rdx
    movq -40(%rbp), %rcx
    movq -32(%rbp), %r8
    movq -24(%rbp), %r9
    call *%r11
    movq %rax, -16(%rbp)
    movq %rdx, -80(%rbp)
    movups %xmm0, (%rsp)
    movl %ebx, %edi
    leaq -208(%rbp), %rsi
    call zelvane_end_call
    movups (%rsp), %xmm0
    movq -80(%rbp), %rdx
    movq -16(%rbp), %rax
    movq -8(%rbp), %rbx
    leave
    .cfi_def_cfa %rsp, 8
    ret
    .cfi_endproc
    .size zelvane_record_call, . - zelvane_record_call
)");

extern "C" {
extern const char zelvane_recording_thunks[];
gl::Function zelvane_begin_call(uint32_t number, const journal::SavedCall *saved);
void zelvane_end_call(uint32_t number, const journal::SavedCall *saved);
}

namespace journal {

gl::Function thunk(uint32_t number, gl::Function) {
    return reinterpret_cast<gl::Function>(reinterpret_cast<uintptr_t>(zelvane_recording_thunks) + 16 * number);
}

} // namespace journal

// Called by the thunks.
gl::Function zelvane_begin_call(uint32_t number, const journal::SavedCall *saved) {
    return journal::beginCall(number, *saved);
}

void zelvane_end_call(uint32_t number, const journal::SavedCall *saved) {
    journal::endCall(number, *saved);
}

#else

namespace journal {

gl::Function thunk(uint32_t, gl::Function function) {
    return function;
}

} // namespace journal

#endif
