#include "egl/libgl.h"

#include <dlfcn.h>

#include "egl/thread_record.h"
#include "foundation/libgl_link.h"
#include "foundation/paths.h"
#include "gl/dynamic_entries.h"
#include "gl/entry_tables.h"

namespace egl {

namespace {

gl::Function findGlEntry(const char *name) {
    const gl::Function known = gl::findEntry(name);
    // Names that no back end has also get an entry, which reports the call.
    return known ? known : gl::dynamicEntry(name);
}

} // namespace

} // namespace egl

extern "C" ZV_EXPORT void zvDescribeToLibGl(LibGlLink *link) {
    *link = {&egl::threadRecord.currentEs, egl::findGlEntry};
}

void egl::connectLibGl() {
    // Opened by its path, since the process may have loaded the host's library of that name too.
    void *const library = dlopen((getOwnDirectory() + libGlFromLibEgl).c_str(), RTLD_LAZY | RTLD_NOLOAD);
    if (!library) return;
    if (auto *const follow = reinterpret_cast<FollowLibEgl *>(dlsym(library, "zvFollowLibEgl"))) {
        LibGlLink link{};
        zvDescribeToLibGl(&link);
        follow(&link);
    }
    dlclose(library);
}
