// The one object of a type that lives as long as the library is loaded: threads may use it while the process ends, and
// unloading the library leaks only what the object owns.
#pragma once

#include <cstddef>
#include <new>

template <typename Object>
[[nodiscard]] Object &neverDestroyed() {
    alignas(Object) static std::byte storage[sizeof(Object)];
    static Object &object = *new (storage) Object;
    return object;
}
