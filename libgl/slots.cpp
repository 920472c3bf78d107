#include "libgl/slots.h"

#include <cstdlib>
#include <cstring>
#include <pthread.h>

#include "libgl/entries.h"

namespace libgl {

namespace {

// Entries are written before their function is returned, and never change.
struct Unnamed {
    pthread_mutex_t mutex = PTHREAD_MUTEX_INITIALIZER;
    size_t count = 0;
    const char *names[unnamedSlots] = {};
};

constinit Unnamed unnamed;

size_t takeWithMutexHeld(const char *name) {
    for (size_t index = 0; index < unnamed.count; ++index) {
        if (strcmp(unnamed.names[index], name) == 0) return namedSlots + index;
    }
    if (unnamed.count == unnamedSlots) return noSlot;
    const char *const kept = strdup(name);
    if (!kept) return noSlot;
    unnamed.names[unnamed.count] = kept;
    return namedSlots + unnamed.count++;
}

} // namespace

size_t findNamedSlot(const char *name) {
    size_t begin = 0, end = namedSlots;
    while (begin < end) {
        const size_t middle = (begin + end) / 2;
        const int order = strcmp(names[middle].name, name);
        if (order == 0) return middle;
        if (order < 0)
            begin = middle + 1;
        else
            end = middle;
    }
    return noSlot;
}

size_t takeUnnamedSlot(const char *name) {
    pthread_mutex_lock(&unnamed.mutex);
    const size_t slot = takeWithMutexHeld(name);
    pthread_mutex_unlock(&unnamed.mutex);
    return slot;
}

const char *nameOfSlot(size_t slot) {
    return slot < namedSlots ? names[slot].name : unnamed.names[slot - namedSlots];
}

} // namespace libgl
