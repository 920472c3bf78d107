// The assembler text around bytes that this library alone sees, for the object files of this platform.
#pragma once

#define READ_ONLY_SECTION ".section .rodata\n"
#define READ_ONLY_SYMBOL(name) ".hidden " name "\n.global " name "\n" name ":\n"
