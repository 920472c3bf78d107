// The one object of a type that lasts as long as the library is loaded: threads may use it while the process ends, and
// a library that is unloaded leaves nothing of it behind but what it holds.
#pragma once

#include <cstddef>
#include <new>

template <typename Object>
[[nodiscard]] Object &neverDestroyed() {
    alignas(Object) static std::byte storage[sizeof(Object)];
    static Object &object = *new (storage) Object;
    return object;
}
