// Assembler for functions that are resolved at their first call, whatever their parameters: saves all registers that
// can hold arguments, calls a C function with the number in %r11d, restores them and jumps to the result. x86-64 ELF
// only.
#pragma once

// label: of the code, which is reached with %r11d set. resolve: a C function from unsigned to a function pointer.
#define RESOLVER_CODE(label, resolve)                                                                                  \
    ".p2align 4\n"                                                                                                     \
    ".type " label ", @function\n" label ":\n"                                                                         \
    ".cfi_startproc\n"                                                                                                 \
    "pushq %rbp\n"                                                                                                     \
    ".cfi_def_cfa_offset 16\n"                                                                                         \
    ".cfi_offset %rbp, -16\n"                                                                                          \
    "movq %rsp, %rbp\n"                                                                                                \
    ".cfi_def_cfa_register %rbp\n"                                                                                     \
    ".irp register, rdi, rsi, rdx, rcx, r8, r9, rax\n"                                                                 \
    "pushq %\\register\n"                                                                                              \
    ".endr\n"                                                                                                          \
    "subq $136, %rsp\n"                                                                                                \
    ".irp number, 0, 1, 2, 3, 4, 5, 6, 7\n"                                                                            \
    "movups %xmm\\number, 16 * \\number(%rsp)\n"                                                                       \
    ".endr\n"                                                                                                          \
    "movl %r11d, %edi\n"                                                                                               \
    "call " resolve "\n"                                                                                               \
    "movq %rax, %r11\n"                                                                                                \
    ".irp number, 0, 1, 2, 3, 4, 5, 6, 7\n"                                                                            \
    "movups 16 * \\number(%rsp), %xmm\\number\n"                                                                       \
    ".endr\n"                                                                                                          \
    "addq $136, %rsp\n"                                                                                                \
    ".irp register, rax, r9, r8, rcx, rdx, rsi, rdi\n"                                                                 \
    "popq %\\register\n"                                                                                               \
    ".endr\n"                                                                                                          \
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
