// eglCreateContext, eglDestroyContext, eglQueryContext.
#include "capability/es_gate.h"
#include "egl/context.h"
#include "egl/context_attribs.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/print_system_report.h"
#include "egl/standard/context_rules.h"
#include "foundation/log.h"

namespace egl {

namespace {

constexpr const char *hostFallsShort =
    "An OpenGL ES context of the requested version could not be created because the host system does not support the "
    "entire feature-set. You can disable this check by switching the context creation mode to 'loose' in Preferences.";

// What the host lacks is told beside every refusal but that of an unknown config.
EGLContext refuse(EGLint error) {
    printSystemReportOnce();
    return fail(error, EGL_NO_CONTEXT);
}

// True if the host carries what the attributes come to, or if that does not matter.
bool settleVersion(const Config &config, ContextAttribs &attribs) {
    const bool canBeEs3 = config.attributeOr0(EGL_RENDERABLE_TYPE) & EGL_OPENGL_ES3_BIT;
    attribs.strictContextMode = state().isStrictContextMode();
    if (desktop_clients::isOn() && !attribs.strictContextMode) {
        const auto *gate = attribs.requestedMajor >= 2 ? state().esGate() : nullptr;
        if (gate) capability::raiseAsDriversDo(*gate, canBeEs3, highestEs3Minor(state().profile()), attribs);
        return true;
    }
    return capability::settleEsVersion([] { return state().esGate(); }, canBeEs3, attribs) ==
           capability::HostAnswer::carries;
}

EGLint readAttributes(const Config &config, const EGLint *list, ContextAttribs &attribs) {
    if (desktop_clients::isOn()) return standard::readContextAttributes(config, state().profile(), list, attribs);
    // An error of its own, which is pending by then, stays.
    if (!parseContextAttribs(config, list, attribs)) return EGL_BAD_ATTRIBUTE;
    const bool isAllowed = isEsVersionAllowed(state().profile(), attribs.requestedMajor, attribs.esMinor);
    return isAllowed ? EGL_SUCCESS : EGL_BAD_MATCH;
}

// Devices do not look.
bool canShare(const ContextAttribs &attribs, const ContextAttribs &share) {
    return !desktop_clients::isOn() || attribs.resetStrategy == share.resetStrategy;
}

EGLContext createContext(Display &display, EGLConfig configHandle, EGLContext shareHandle, const EGLint *list) {
    const auto config = configHandle ? display.findConfig(configHandle) : display.noConfig();
    if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_CONTEXT);

    ContextAttribs attribs = defaultContextAttribs();
    if (const EGLint error = readAttributes(*config, list, attribs); error != EGL_SUCCESS) return refuse(error);
    if (attribs.requestedMajor == 1) attribs.legacyClient = 1;

    std::shared_ptr<Context> share;
    if (shareHandle) {
        share = display.findContext(shareHandle);
        if (!share) return refuse(EGL_BAD_CONTEXT);
        if (!canShare(attribs, share->attribs)) return refuse(EGL_BAD_MATCH);
    }
    if (!settleVersion(*config, attribs)) {
        logMessage(LogWarning, "%s", hostFallsShort);
        return refuse(EGL_BAD_ALLOC);
    }
    const auto context = display.createContext(config, share, attribs);
    if (!context) return refuse(EGL_BAD_ALLOC);
    return succeed(asHandle<EGLContext>(context->handle));
}

} // namespace

} // namespace egl

using namespace egl;

EGLContext EGLAPIENTRY eglCreateContext(EGLDisplay dpy, EGLConfig config, EGLContext share, const EGLint *attributes) {
    return entry(dpy, EGL_NO_CONTEXT,
                 [&](Display &display) { return createContext(display, config, share, attributes); });
}

EGLBoolean EGLAPIENTRY eglDestroyContext(EGLDisplay dpy, EGLContext ctx) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        const auto context = display.findContext(ctx);
        if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
        if (context->boundToThread) context->pendingDestroy = true;
        // A back end that cannot delete leaves the context in the table; the answer is true all the same.
        if (!context->boundToThread) display.destroyContext(context->handle);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglQueryContext(EGLDisplay dpy, EGLContext ctx, EGLint attribute, EGLint *value) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        const auto context = display.findContext(ctx);
        if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
        if (!value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        if (desktop_clients::isOn()) return finish(standard::queryContext(*context, attribute, value));
        switch (attribute) {
        case EGL_CONTEXT_CLIENT_VERSION:
            // What was asked for, not what it was raised to.
            *value = context->attribs.requestedMajor;
            return succeed(EGL_TRUE);
        case EGL_CONTEXT_CLIENT_TYPE:
            *value = EGL_OPENGL_ES_API;
            return succeed(EGL_TRUE);
        case EGL_CONFIG_ID:
            *value = context->config->attributeOr0(EGL_CONFIG_ID);
            return succeed(EGL_TRUE);
        default:
            return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        }
    });
}
