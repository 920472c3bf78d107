// The assembler text around bytes that this library alone sees, for the object files of this platform.
#pragma once

#define READ_ONLY_SECTION ".section __TEXT,__const\n"
#define READ_ONLY_SYMBOL(name) ".private_extern _" name "\n.globl _" name "\n_" name ":\n"
