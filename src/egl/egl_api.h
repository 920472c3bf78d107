// The EGL headers as all files of the library include them: exported entries have default visibility, and entries that
// only eglGetProcAddress returns have no prototypes here.
#pragma once

#define EGLAPI extern __attribute__((visibility("default")))
#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <cstdint>
#include <type_traits>

// Our own names for the priority attribute and its levels.
#define EGL_CONTEXT_PRIORITY_LEVEL_TWG 0x3100
#define EGL_CONTEXT_PRIORITY_HIGH_TWG 0x3101
#define EGL_CONTEXT_PRIORITY_MEDIUM_TWG 0x3102
#define EGL_CONTEXT_PRIORITY_LOW_TWG 0x3103

// The native types are pointers on one platform and integers on another; the layers below take each as an integer.
template <typename Native>
uint64_t hostWord(Native native) {
    if constexpr (std::is_pointer_v<Native>)
        return reinterpret_cast<uintptr_t>(native);
    else
        return static_cast<uint64_t>(native);
}
