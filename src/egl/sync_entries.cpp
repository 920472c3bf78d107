// Sync objects: host fences, used directly. A sync's handle is the host's.
#include "egl/context.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/extension_entries.h"
#include "egl/standard/syncs.h"
#include "foundation/attribute_list.h"
#include "foundation/gl_types.h"

#include <vector>

namespace egl {

namespace {

// 0 and negative flags flush too, so that a wait without EGL_SYNC_FLUSH_COMMANDS_BIT cannot wait for commands that were
// never sent.
uint32_t hostWaitFlags(EGLint flags) {
    return flags < 2 ? 1 : 0;
}

EGLint eglWaitResult(uint32_t hostResult) {
    switch (hostResult) {
    case GL_ALREADY_SIGNALED:
    case GL_CONDITION_SATISFIED:
        return EGL_CONDITION_SATISFIED;
    case GL_TIMEOUT_EXPIRED:
        return EGL_TIMEOUT_EXPIRED;
    default:
        return 0;
    }
}

// An unknown attribute is queried from the host as name 0, and is no error.
uint32_t hostSyncName(EGLint attribute) {
    switch (attribute) {
    case EGL_SYNC_TYPE:
        return GL_OBJECT_TYPE;
    case EGL_SYNC_CONDITION:
        return GL_SYNC_CONDITION;
    case EGL_SYNC_STATUS:
        return GL_SYNC_STATUS;
    default:
        return 0;
    }
}

EGLSync createSync(Display &display, EGLenum type, const EGLAttrib *attributes) {
    if (type == EGL_SYNC_FENCE && &display != threadRecord.currentDisplay) return fail(EGL_BAD_MATCH, EGL_NO_SYNC);
    // Other types generate this error too.
    if (!AttributeList(attributes).isEmpty() || type != EGL_SYNC_FENCE) {
        return fail(EGL_BAD_ATTRIBUTE, EGL_NO_SYNC);
    }
    if (!threadRecord.current) return fail(EGL_BAD_MATCH, EGL_NO_SYNC);
    const host::EGL &hostEGL = state().hostEGL();
    if (!hostEGL.glFenceSync) return fail(EGL_BAD_ALLOC, EGL_NO_SYNC);
    return succeed(display.createSync(hostEGL));
}

// The checks of a device's waits and queries: a known sync, then a current context.
template <typename Result, typename Standard, typename Body>
Result withSync(EGLDisplay dpy, EGLSync sync, Result failure, Standard standard, Body body) {
    return entry(dpy, failure, [&](Display &display) {
        if (desktop_clients::isOn()) return standard(display);
        if (!display.isKnownSync(sync)) return fail(EGL_BAD_PARAMETER, failure);
        if (!threadRecord.current) return fail(EGL_BAD_CONTEXT, failure);
        return body(state().hostEGL());
    });
}

} // namespace

EGLSync EGLAPIENTRY createSyncKHR(EGLDisplay dpy, EGLenum type, const EGLint *attributes) {
    std::vector<EGLAttrib> wide;
    for (; attributes && *attributes != EGL_NONE; ++attributes)
        wide.push_back(*attributes);
    wide.push_back(EGL_NONE);
    if (!desktop_clients::isOn()) return eglCreateSync(dpy, type, wide.data());
    return entry(dpy, EGL_NO_SYNC,
                 [&](Display &display) { return standard::createSync(display, type, wide.data(), EGL_BAD_ATTRIBUTE); });
}

EGLBoolean EGLAPIENTRY getSyncAttribKHR(EGLDisplay dpy, EGLSync sync, EGLint attribute, EGLint *value) {
    EGLAttrib wide = 0;
    const EGLBoolean result = eglGetSyncAttrib(dpy, sync, attribute, value ? &wide : nullptr);
    if (value && (result || !desktop_clients::isOn())) *value = static_cast<EGLint>(wide);
    return result;
}

} // namespace egl

using namespace egl;

EGLSync EGLAPIENTRY eglCreateSync(EGLDisplay dpy, EGLenum type, const EGLAttrib *attributes) {
    return entry(dpy, EGL_NO_SYNC, [&](Display &display) {
        return desktop_clients::isOn() ? standard::createSync(display, type, attributes, EGL_BAD_PARAMETER)
                                       : createSync(display, type, attributes);
    });
}

EGLBoolean EGLAPIENTRY eglDestroySync(EGLDisplay dpy, EGLSync sync) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        if (desktop_clients::isOn()) return standard::destroySync(display, sync);
        if (!display.isKnownSync(sync)) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        // Without a current context the sync remains valid and can be destroyed later.
        if (!threadRecord.current) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        display.destroySync(state().hostEGL(), sync);
        return succeed(EGL_TRUE);
    });
}

EGLint EGLAPIENTRY eglClientWaitSync(EGLDisplay dpy, EGLSync sync, EGLint flags, EGLTime timeoutNs) {
    return withSync<EGLint>(
        dpy, sync, 0, [&](Display &display) { return standard::clientWaitSync(display, sync, flags, timeoutNs); },
        [&](const host::EGL &hostEGL) -> EGLint {
            if (!hostEGL.glClientWaitSync) return succeed(0);
            const uint32_t result = hostEGL.glClientWaitSync(sync, hostWaitFlags(flags), timeoutNs);
            hostEGL.sweepError();
            return succeed(eglWaitResult(result));
        });
}

EGLBoolean EGLAPIENTRY eglWaitSync(EGLDisplay dpy, EGLSync sync, EGLint flags) {
    return withSync<EGLBoolean>(
        dpy, sync, EGL_FALSE, [&](Display &display) { return standard::waitSync(display, sync, flags); },
        [&](const host::EGL &hostEGL) -> EGLBoolean {
            // The host accepts no flags here and generates an error, which is then cleared.
            if (hostEGL.glWaitSync) hostEGL.glWaitSync(sync, hostWaitFlags(flags), GL_TIMEOUT_IGNORED);
            hostEGL.sweepError();
            return succeed(EGL_TRUE);
        });
}

// Returns the host's values, such as GL_SIGNALED for EGL_SYNC_STATUS, without translation.
EGLBoolean EGLAPIENTRY eglGetSyncAttrib(EGLDisplay dpy, EGLSync sync, EGLint attribute, EGLAttrib *value) {
    return withSync<EGLBoolean>(
        dpy, sync, EGL_FALSE,
        [&](Display &display) { return standard::getSyncAttrib(display, sync, attribute, value); },
        [&](const host::EGL &hostEGL) -> EGLBoolean {
            if (!value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
            int32_t answer = 0;
            if (hostEGL.glGetSynciv) hostEGL.glGetSynciv(sync, hostSyncName(attribute), 1, nullptr, &answer);
            *value = answer;
            return succeed(EGL_TRUE);
        });
}
