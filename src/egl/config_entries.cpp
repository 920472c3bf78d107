// Entries about configs. The device profile defines the lists; the host is not queried for devices.
#include "egl/call_reports.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/refusal.h"
#include "foundation/attribute_list.h"
#include "profiles/standard_choice.h"

using namespace egl;

EGLBoolean EGLAPIENTRY eglGetConfigs(EGLDisplay dpy, EGLConfig *configs, EGLint configSize, EGLint *numConfig) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!numConfig) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        *numConfig = display.listConfigs(configs, configSize);
        return succeed(EGL_TRUE);
    });
}

namespace egl {

namespace {

bool isValidList(const EGLint *attributes) {
    return desktop_clients::isOn() ? isValidByStandard(attributes) : validateAttributeList(attributes);
}

// Notes the first invalid pair of the list.
EGLint becauseOfList(const EGLint *attributes) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        const EGLint pair[] = {name, value, EGL_NONE};
        if (isValidList(pair)) continue;
        return refusals::because(refusals::Rule::wrongValue, EGL_BAD_ATTRIBUTE, {.attribute = name, .value = value});
    }
    return EGL_BAD_ATTRIBUTE;
}

} // namespace

} // namespace egl

EGLBoolean EGLAPIENTRY eglChooseConfig(EGLDisplay dpy, const EGLint *attributes, EGLConfig *configs, EGLint configSize,
                                       EGLint *numConfig) {
    ChoiceAccount account;
    const EGLBoolean answer = entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!numConfig) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        if (!isValidList(attributes)) return fail(becauseOfList(attributes), EGL_FALSE);
        *numConfig = display.chooseConfigs(attributes, configs, configSize, reports::isOn() ? &account : nullptr);
        return succeed(EGL_TRUE);
    });
    if (reports::isOn()) reports::choice(answer, attributes, answer ? *numConfig : 0, account);
    return answer;
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
