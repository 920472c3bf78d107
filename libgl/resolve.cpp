// Resolves each function at its first call.
#include "libgl/entries.h"
#include "libgl/libraries.h"
#include "libgl/slots.h"

namespace libgl {

namespace {

// Only existing functions are stored, since the host may have others later, when it has loaded a driver.
Function resolveOnHost(size_t slot) {
    const Function found = findHostFunction(nameOfSlot(slot));
    if (!found) return libgl_nothing;
    keepHostFunction(slot, found);
    return found;
}

Function resolveForEgl(size_t slot) {
    // The constructor of another library may call before this library's has run.
    if (!isReady()) return resolveOnHost(slot);
    const bool isGl = slot >= namedSlots || names[slot].kind == Kind::follows;
    const Function found = isGl ? findEglFunction(nameOfSlot(slot)) : nullptr;
    const Function kept = found ? found : libgl_nothing;
    keepEglFunction(slot, kept);
    return kept;
}

} // namespace

} // namespace libgl

// Called by the resolvers with their number.
extern "C" libgl::Function libgl_resolve(unsigned number) {
    return number & 1 ? libgl::resolveForEgl(number >> 1) : libgl::resolveOnHost(number >> 1);
}
