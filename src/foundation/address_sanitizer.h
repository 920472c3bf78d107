// ASAN_POISON_MEMORY_REGION and ASAN_UNPOISON_MEMORY_REGION, which do nothing without the address sanitizer. A compiler
// may be installed without the sanitizer's header.
#pragma once

#if __has_include(<sanitizer/asan_interface.h>)
#include <sanitizer/asan_interface.h>
#else
#define ASAN_POISON_MEMORY_REGION(address, size) (static_cast<void>(address), static_cast<void>(size))
#define ASAN_UNPOISON_MEMORY_REGION(address, size) (static_cast<void>(address), static_cast<void>(size))
#endif
