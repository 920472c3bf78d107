// Entries about configs. The lists are told by the device profile; the host is never asked.
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"

using namespace egl;

EGLBoolean EGLAPIENTRY eglGetConfigs(EGLDisplay dpy, EGLConfig *configs, EGLint configSize, EGLint *numConfig) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!numConfig) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        *numConfig = display.listConfigs(configs, configSize);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglChooseConfig(EGLDisplay dpy, const EGLint *attributes, EGLConfig *configs, EGLint configSize,
                                       EGLint *numConfig) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!numConfig) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        if (!validateAttributeList(attributes)) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        *numConfig = display.chooseConfigs(attributes, configs, configSize);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglGetConfigAttrib(EGLDisplay dpy, EGLConfig config, EGLint attribute, EGLint *value) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        const auto found = display.findConfig(config);
        if (!found) return fail(EGL_BAD_CONFIG, EGL_FALSE);
        if (!value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        if (const auto visual = desktop_clients::nativeVisual(*found, attribute)) {
            *value = *visual;
            return succeed(EGL_TRUE);
        }
        if (!found->getAttribute(attribute, value)) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        return succeed(EGL_TRUE);
    });
}
