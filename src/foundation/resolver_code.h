// Assembler for functions that are resolved at their first call, whatever their parameters: saves all registers that
// can hold arguments, calls a C function with the number in %r11d, restores them and jumps to the result. x86-64 ELF
// only.
#pragma once

// label: of the code, at which %r11d is set. resolve: a C function from unsigned to a function pointer.
#define RESOLVER_CODE(label, resolve)                                                                                  \
    ".p2align 4\n"                                                                                                     \
    ".type " label ", @function\n" label ":\n"                                                                         \
    ".cfi_startproc\n"                                                                                                 \
    "pushq %rbp\n"                                                                                                     \
    ".cfi_def_cfa_offset 16\n"                                                                                         \
    ".cfi_offset %rbp, -16\n"                                                                                          \
    "movq %rsp, %rbp\n"                                                                                                \
    ".cfi_def_cfa_register %rbp\n"                                                                                     \
    "pushq %rdi\n"                                                                                                     \
    "pushq %rsi\n"                                                                                                     \
    "pushq %rdx\n"                                                                                                     \
    "pushq %rcx\n"                                                                                                     \
    "pushq %r8\n"                                                                                                      \
    "pushq %r9\n"                                                                                                      \
    "pushq %rax\n"                                                                                                     \
    "subq $136, %rsp\n"                                                                                                \
    "movups %xmm0, (%rsp)\n"                                                                                           \
    "movups %xmm1, 16(%rsp)\n"                                                                                         \
    "movups %xmm2, 32(%rsp)\n"                                                                                         \
    "movups %xmm3, 48(%rsp)\n"                                                                                         \
    "movups %xmm4, 64(%rsp)\n"                                                                                         \
    "movups %xmm5, 80(%rsp)\n"                                                                                         \
    "movups %xmm6, 96(%rsp)\n"                                                                                         \
    "movups %xmm7, 112(%rsp)\n"                                                                                        \
    "movl %r11d, %edi\n"                                                                                               \
    "call " resolve "\n"                                                                                               \
    "movq %rax, %r11\n"                                                                                                \
    "movups (%rsp), %xmm0\n"                                                                                           \
    "movups 16(%rsp), %xmm1\n"                                                                                         \
    "movups 32(%rsp), %xmm2\n"                                                                                         \
    "movups 48(%rsp), %xmm3\n"                                                                                         \
    "movups 64(%rsp), %xmm4\n"                                                                                         \
    "movups 80(%rsp), %xmm5\n"                                                                                         \
    "movups 96(%rsp), %xmm6\n"                                                                                         \
    "movups 112(%rsp), %xmm7\n"                                                                                        \
    "addq $136, %rsp\n"                                                                                                \
    "popq %rax\n"                                                                                                      \
    "popq %r9\n"                                                                                                       \
    "popq %r8\n"                                                                                                       \
    "popq %rcx\n"                                                                                                      \
    "popq %rdx\n"                                                                                                      \
    "popq %rsi\n"                                                                                                      \
    "popq %rdi\n"                                                                                                      \
    "popq %rbp\n"                                                                                                      \
    ".cfi_def_cfa %rsp, 8\n"                                                                                           \
    "jmpq *%r11\n"                                                                                                     \
    ".cfi_endproc\n"                                                                                                   \
    ".size " label ", . - " label "\n"

// A function that does nothing and returns 0, as an integer or a floating-point number.
#define NOTHING_CODE(label)                                                                                            \
    ".p2align 4\n"                                                                                                     \
    ".type " label ", @function\n" label ":\n"                                                                         \
    "xorl %eax, %eax\n"                                                                                                \
    "xorps %xmm0, %xmm0\n"                                                                                             \
    "ret\n"                                                                                                            \
    ".size " label ", . - " label "\n"
