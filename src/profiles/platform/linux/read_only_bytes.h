// The assembler directives around embedded bytes that are local to the library, for this platform's object files.
#pragma once

#define READ_ONLY_SECTION ".section .rodata\n"
#define READ_ONLY_SYMBOL(name) ".hidden " name "\n.global " name "\n" name ":\n"
