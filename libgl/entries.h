// The exported functions and those of names that are in no table, with a slot for each. A function jumps to the host's
// function, or to that of the EGL context that is current on the thread.
#pragma once

#include <cstddef>

namespace libgl {

using Function = void (*)();

enum class Kind { follows, passes, current }; // see data/names.def

struct Name {
    const char *name;
    Kind kind;
};

inline constexpr Name names[] = {
#define NAME(name, kind) {#name, Kind::kind},
#include "libgl/data/names.def"
#undef NAME
};

inline constexpr size_t namedSlots = sizeof names / sizeof *names;
inline constexpr size_t unnamedSlots = 512; // for names that are in no table, all of the kind follows
inline constexpr size_t slotCount = namedSlots + unnamedSlots;

// The function of a slot.
[[nodiscard]] Function entry(size_t slot);

// Makes the functions follow the word at this offset from the thread pointer.
void follow(ptrdiff_t context);
// Whether there is a word to follow.
[[nodiscard]] bool isReady();

// Stores the function that a slot jumps to: on the host, or while an EGL context is current.
void keepHostFunction(size_t slot, Function function);
void keepEglFunction(size_t slot, Function function);

// Does nothing and returns 0.
extern "C" void libgl_nothing();

} // namespace libgl
