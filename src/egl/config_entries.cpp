// Entries about configs. The lists are told by the device profile; for devices the host is never asked.
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "profiles/standard_choice.h"

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
        const bool isValid =
            desktop_clients::isOn() ? isValidByStandard(attributes) : validateAttributeList(attributes);
        if (!isValid) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        *numConfig = display.chooseConfigs(attributes, configs, configSize);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglGetConfigAttrib(EGLDisplay dpy, EGLConfig config, EGLint attribute, EGLint *value) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        const auto found = display.findConfig(config);
        if (!found) return fail(EGL_BAD_CONFIG, EGL_FALSE);
        EGLint answer = 0;
        if (!found->getAttribute(attribute, &answer)) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        if (!value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        *value = answer;
        return succeed(EGL_TRUE);
    });
}
