// The assembler directives around embedded bytes that are local to the library, for this platform's object files.
#pragma once

#define READ_ONLY_SECTION ".section __TEXT,__const\n"
#define READ_ONLY_SYMBOL(name) ".private_extern _" name "\n.globl _" name "\n_" name ":\n"
