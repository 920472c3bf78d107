#include "common/per_back_end/host_gl.h"

#include "common/host_library.h"

HostGl hostGlTable;

namespace {

bool loadHostGl(HostGl &gl) {
#define HOST_CALL(field, name)                                                                                         \
    gl.field = reinterpret_cast<decltype(gl.field)>(hostFunction(#name));                                              \
    if (!gl.field) return false;
#define DESKTOP_CALL(field, name, type) HOST_CALL(field, name)
#include "data/host_calls.def"
#undef DESKTOP_CALL
#undef HOST_CALL
    return true;
}

} // namespace

const HostGl *findHostGl() {
    static const bool isLoaded = loadHostGl(hostGlTable);
    return isLoaded ? &hostGlTable : nullptr;
}

void sweepHostErrors() {
    // Limited, since a lost context returns an error at every call.
    for (int count = 0; count < 16 && hostGl().getError() != GL_NO_ERROR; ++count) {
    }
}
