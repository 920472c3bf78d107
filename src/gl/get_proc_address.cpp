// How applications reach everything but the core EGL functions. Looks at no display, context or profile: a name that
// the back end lacks gives its proxy too, and the failure shows at the call.
#include <cstring>
#include <span>

#include "egl/desktop_clients.h"
#include "egl/egl_api.h"
#include "egl/extension_entries.h"
#include "egl/state.h"
#include "egl/thread_record.h"
#include "gl/entry_tables.h"

namespace gl {

namespace {

#define ROW(name, function)                                                                                            \
    { name, reinterpret_cast<Function>(function) }
const ProcTableRow eglTable[] = {
    ROW("eglCreateSyncKHR", egl::createSyncKHR),
    ROW("eglDestroySyncKHR", eglDestroySync),
    ROW("eglClientWaitSyncKHR", eglClientWaitSync),
    ROW("eglGetSyncAttribKHR", egl::getSyncAttribKHR),
    ROW("eglCreateImageKHR", eglCreateImage),
    ROW("eglDestroyImageKHR", eglDestroyImage),
    ROW("eglSwapBuffersWithDamageEXT", egl::swapBuffersWithDamage),
    ROW("eglSwapBuffersWithDamageKHR", egl::swapBuffersWithDamage),
    ROW("eglSetDamageRegionKHR", egl::setDamageRegionKHR),
    ROW("eglGetPlatformDisplayEXT", egl::getPlatformDisplayEXT),
    ROW("eglCreatePlatformWindowSurfaceEXT", eglCreateWindowSurface),
    ROW("eglCreatePlatformPixmapSurfaceEXT", eglCreatePixmapSurface),
    ROW("eglWaitSyncKHR", eglWaitSync),
};
#undef ROW

// Null when no table has the name. There is no hash: applications look a name up once.
Function findFunction(const char *name) {
    if (const auto function = egl::desktop_clients::findEntry(name)) return function;
    const std::span<const ProcTableRow> tables[] = {eglTable, extensionTable, baseTable};
    for (const auto table : tables) {
        for (const ProcTableRow &row : table) {
            if (strcmp(name, row.name) == 0) return row.function;
        }
    }
    return nullptr;
}

} // namespace

} // namespace gl

// Never reports an error, and clears a pending one whether or not the name is found.
__eglMustCastToProperFunctionPointerType EGLAPIENTRY eglGetProcAddress(const char *procname) {
    const gl::Function function = egl::ensureLoaded() && procname ? gl::findFunction(procname) : nullptr;
    egl::threadRecord.error = EGL_SUCCESS;
    return function;
}
