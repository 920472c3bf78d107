// eglGetProcAddress: reaches everything but the core EGL functions. Independent of display, context and profile: a name
// that the back end lacks has a proxy too, and the failure shows at the call.
#include <cstring>

#include "egl/call_reports.h"
#include "egl/desktop_clients.h"
#include "egl/egl_api.h"
#include "egl/extension_entries.h"
#include "egl/state.h"
#include "egl/thread_record.h"
#include "gl/dynamic_entries.h"
#include "gl/entry_tables.h"
#include "journal/recorded_calls.h"

namespace egl {

namespace {

gl::Function asFunction(auto *function) {
    return reinterpret_cast<gl::Function>(function);
}

#define ROW(name, function)                                                                                            \
    { name, reinterpret_cast<gl::Function>(function) }
const gl::ProcTableRow extensionEntries[] = {
    ROW("eglCreateSyncKHR", createSyncKHR),
    ROW("eglDestroySyncKHR", eglDestroySync),
    ROW("eglClientWaitSyncKHR", eglClientWaitSync),
    ROW("eglGetSyncAttribKHR", getSyncAttribKHR),
    ROW("eglCreateImageKHR", eglCreateImage),
    ROW("eglDestroyImageKHR", eglDestroyImage),
    ROW("eglSwapBuffersWithDamageEXT", swapBuffersWithDamage),
    ROW("eglSwapBuffersWithDamageKHR", swapBuffersWithDamage),
    ROW("eglSetDamageRegionKHR", setDamageRegionKHR),
    ROW("eglGetPlatformDisplayEXT", getPlatformDisplayEXT),
    ROW("eglCreatePlatformWindowSurfaceEXT", eglCreateWindowSurface),
    ROW("eglCreatePlatformPixmapSurfaceEXT", eglCreatePixmapSurface),
    ROW("eglWaitSyncKHR", eglWaitSync),
};
#undef ROW

// Null when there is no such entry.
gl::Function findFunction(const char *name) {
    if (strncmp(name, "egl", 3) != 0) {
        // For back ends, whose exported functions are called without this function.
        if (journal::isOn() && strcmp(name, "zvRecordedFunction") == 0) return asFunction(journal::recorded);
        if (const auto function = gl::findEntry(name)) return function;
        if (desktop_clients::isKnownToBackEnd(name)) return gl::dynamicEntry(name);
        return desktop_clients::findHostFunction(name);
    }
    if (const auto function = desktop_clients::findEntry(name)) return function;
    for (const gl::ProcTableRow &row : extensionEntries) {
        if (strcmp(name, row.name) == 0) return row.function;
    }
    return nullptr;
}

} // namespace

} // namespace egl

// Never reports an error, and clears a pending one whether or not the name is found.
__eglMustCastToProperFunctionPointerType EGLAPIENTRY eglGetProcAddress(const char *procname) {
    const gl::Function function = egl::ensureLoaded() && procname ? egl::findFunction(procname) : nullptr;
    egl::threadRecord.error = EGL_SUCCESS;
    return egl::reports::told(function, egl::reports::lookup, procname);
}
