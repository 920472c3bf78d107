// eglCreateContext, eglDestroyContext, eglQueryContext.
#include "capability/es_gate.h"
#include "egl/call_reports.h"
#include "egl/context.h"
#include "egl/context_attribs.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/print_system_report.h"
#include "egl/refusal.h"
#include "egl/standard/context_rules.h"
#include "egl/standard/desktop_contexts.h"
#include "foundation/log.h"

namespace egl {

namespace {

using refusals::because;
using refusals::Rule;

constexpr const char *hostFallsShort =
    "An OpenGL ES context of the requested version could not be created because the host system does not support the "
    "entire feature-set. You can disable this check by switching the context creation mode to 'loose' in Preferences.";

// Every failure except that for an unknown config prints the host's report.
EGLContext refuse(EGLint error) {
    printSystemReportOnce();
    return fail(error, EGL_NO_CONTEXT);
}

// Whether the host supports the version of the attributes. True if that does not matter.
capability::HostAnswer settleVersion(const Config &config, ContextAttribs &attribs) {
    const bool canBeEs3 = config.attributeOr0(EGL_RENDERABLE_TYPE) & EGL_OPENGL_ES3_BIT;
    attribs.strictContextMode = state().isStrictContextMode();
    if (desktop_clients::isOn() && !attribs.strictContextMode) {
        const auto *gate = attribs.requestedMajor >= 2 ? state().esGate() : nullptr;
        if (gate) capability::raiseAsDriversDo(*gate, canBeEs3, highestEs3Minor(state().profile()), attribs);
        return capability::HostAnswer::carries;
    }
    return capability::settleEsVersion([] { return state().esGate(); }, canBeEs3, attribs);
}

void tellWhatIsMissing(const ContextAttribs &attribs) {
    const auto version = capability::esVersionFromContext(attribs.esMajor, attribs.esMinor);
    std::string text;
    for (const auto feature : state().esGate()->of(version).missing)
        text.append(text.empty() ? "The host lacks " : ", ").append(capability::descriptorOf(feature).name);
    text += " for OpenGL ES " + std::to_string(attribs.esMajor) + "." + std::to_string(attribs.esMinor);
    logMessage(LogError, "%s", text.c_str());
}

EGLint readAttributes(const Config &config, const EGLint *list, ContextAttribs &attribs) {
    if (desktop_clients::isOn()) return standard::readContextAttributes(config, state().profile(), list, attribs);
    // parseContextAttribs sets its error, which stays pending.
    if (!parseContextAttribs(config, list, attribs)) return EGL_BAD_ATTRIBUTE;
    const EGLint major = attribs.requestedMajor, minor = attribs.esMinor;
    const bool isAllowed = isEsVersionAllowed(state().profile(), major, minor);
    return isAllowed ? EGL_SUCCESS : refusals::becauseOfVersion(major, minor, EGL_BAD_MATCH);
}

// Devices do not check this.
bool canShare(const ContextAttribs &attribs, const ContextAttribs &share) {
    return !desktop_clients::isOn() || attribs.resetStrategy == share.resetStrategy;
}

// The error of a share context for one of the API; of another API, it is no context to share with.
EGLint shareError(const Context *share, const ContextAttribs &attribs, EGLenum api) {
    if (!share) return EGL_BAD_CONTEXT;
    if (share->api != api) return because(Rule::sharesWithOtherApi, EGL_BAD_CONTEXT);
    return canShare(attribs, share->attribs) ? EGL_SUCCESS : because(Rule::otherResetStrategy, EGL_BAD_MATCH);
}

// The host decides at once which versions it has: programs try one after the other.
EGLContext createDesktopContext(Display &display, std::shared_ptr<const Config> config, EGLContext shareHandle,
                                const EGLint *list) {
    ContextAttribs attribs = defaultContextAttribs();
    const EGLint error = standard::readDesktopContextAttributes(*config, list, attribs);
    if (error != EGL_SUCCESS) return fail(error, EGL_NO_CONTEXT);
    const auto share = shareHandle ? display.findContext(shareHandle) : nullptr;
    const EGLint ofShare = shareHandle ? shareError(share.get(), attribs, EGL_OPENGL_API) : EGL_SUCCESS;
    if (ofShare != EGL_SUCCESS) return fail(ofShare, EGL_NO_CONTEXT);
    const auto context = display.createContext(std::move(config), share, attribs, EGL_OPENGL_API);
    if (context->hasHostContext()) return succeed(asHandle<EGLContext>(context->handle));
    display.destroyContext(context->handle);
    const EGLint refused =
        because(Rule::hostWithoutOpenGl, EGL_BAD_MATCH, {.major = attribs.requestedMajor, .minor = attribs.esMinor});
    return fail(refused, EGL_NO_CONTEXT);
}

EGLContext createContext(Display &display, EGLConfig configHandle, EGLContext shareHandle, const EGLint *list) {
    const auto config = configHandle ? display.findConfig(configHandle) : display.noConfig();
    if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_CONTEXT);
    if (threadRecord.api == EGL_OPENGL_API) return createDesktopContext(display, config, shareHandle, list);

    ContextAttribs attribs = defaultContextAttribs();
    if (const EGLint error = readAttributes(*config, list, attribs); error != EGL_SUCCESS) return refuse(error);
    if (attribs.requestedMajor == 1) attribs.legacyClient = 1;

    std::shared_ptr<Context> share;
    if (shareHandle) {
        share = display.findContext(shareHandle);
        const EGLint error = shareError(share.get(), attribs, EGL_OPENGL_ES_API);
        if (error != EGL_SUCCESS) return refuse(error);
    }
    if (const auto answer = settleVersion(*config, attribs); answer != capability::HostAnswer::carries) {
        logMessage(LogWarning, "%s", hostFallsShort);
        if (answer == capability::HostAnswer::lacks) tellWhatIsMissing(attribs);
        return refuse(
            because(Rule::hostFallsShort, EGL_BAD_ALLOC, {.major = attribs.esMajor, .minor = attribs.esMinor}));
    }
    const auto context = display.createContext(config, share, attribs);
    if (!context) return refuse(EGL_BAD_ALLOC);
    return succeed(asHandle<EGLContext>(context->handle));
}

std::optional<EGLint> contextAttribute(const Context &context, EGLint attribute) {
    switch (attribute) {
    case EGL_CONTEXT_CLIENT_VERSION:
        return context.attribs.requestedMajor; // the requested version, not the one it was raised to
    case EGL_CONTEXT_CLIENT_TYPE:
        return EGL_OPENGL_ES_API;
    case EGL_CONFIG_ID:
        return context.config->attributeOr0(EGL_CONFIG_ID);
    default:
        return std::nullopt;
    }
}

} // namespace

} // namespace egl

using namespace egl;

EGLContext EGLAPIENTRY eglCreateContext(EGLDisplay dpy, EGLConfig config, EGLContext share, const EGLint *attributes) {
    const EGLContext made =
        entry(dpy, EGL_NO_CONTEXT, [&](Display &display) { return createContext(display, config, share, attributes); });
    return reports::told(made, reports::context, dpy, config, share, attributes);
}

EGLBoolean EGLAPIENTRY eglDestroyContext(EGLDisplay dpy, EGLContext ctx) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        const auto context = display.findContext(ctx);
        if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
        if (context->boundToThread) context->pendingDestroy = true;
        // The call succeeds even if the back end cannot delete the context, which then stays in the table.
        if (!context->boundToThread) display.destroyContext(context->handle);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglQueryContext(EGLDisplay dpy, EGLContext ctx, EGLint attribute, EGLint *value) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        const auto context = display.findContext(ctx);
        if (!context) return fail(EGL_BAD_CONTEXT, EGL_FALSE);
        if (desktop_clients::isOn()) {
            return finish(value ? standard::queryContext(*context, attribute, value) : EGL_BAD_PARAMETER);
        }
        const auto answer = contextAttribute(*context, attribute);
        if (!answer) return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        if (!value) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
        *value = *answer;
        return succeed(EGL_TRUE);
    });
}
