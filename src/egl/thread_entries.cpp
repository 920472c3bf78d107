// Entries that use the state of the calling thread only. None of them loads anything.
#include "egl/binding.h"
#include "egl/call_reports.h"
#include "egl/context.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/refusal.h"
#include "egl/standard/binding_rules.h"

using namespace egl;

EGLint EGLAPIENTRY eglGetError(void) {
    return std::exchange(threadRecord.error, EGL_SUCCESS);
}

namespace egl {

namespace {

EGLint becauseOfApi(EGLenum api) {
    using refusals::Rule;
    if (desktop_clients::haveOpenGl()) return refusals::because(Rule::noSuchApi, EGL_BAD_PARAMETER);
    return refusals::because(api == EGL_OPENGL_API ? Rule::openGlIsOff : Rule::otherApi, EGL_BAD_PARAMETER);
}

// On devices the waits return at once without a glFinish on the host, so a wait in every frame costs nothing.
EGLBoolean waitForClient() {
    if (!desktop_clients::isOn() || !threadRecord.current) return succeed(EGL_TRUE);
    const auto glFinish = reinterpret_cast<void (*)()>(threadRecord.current->getExtProcAddress("glFinish"));
    if (glFinish) glFinish();
    showPixmap(*threadRecord.current);
    return succeed(EGL_TRUE);
}

} // namespace

} // namespace egl

EGLBoolean EGLAPIENTRY eglBindAPI(EGLenum api) {
    const bool isOffered = api == EGL_OPENGL_ES_API || (api == EGL_OPENGL_API && desktop_clients::haveOpenGl());
    if (!isOffered) {
        desktop_clients::tellOfOtherApi(api);
        return reports::told<EGLBoolean>(fail(becauseOfApi(api), EGL_FALSE), reports::bindApi, api);
    }
    threadRecord.api = api;
    return reports::told<EGLBoolean>(succeed(EGL_TRUE), reports::bindApi, api);
}

EGLenum EGLAPIENTRY eglQueryAPI(void) {
    return succeed(threadRecord.api);
}

EGLBoolean EGLAPIENTRY eglWaitClient(void) {
    return waitForClient();
}
EGLBoolean EGLAPIENTRY eglWaitGL(void) {
    return waitForClient();
}

EGLBoolean EGLAPIENTRY eglWaitNative(EGLint engine) {
    if (engine != EGL_CORE_NATIVE_ENGINE) return fail(EGL_BAD_PARAMETER, EGL_FALSE);
    return succeed(EGL_TRUE);
}

// On devices it releases nothing: the context stays current, and the thread can continue to draw.
EGLBoolean EGLAPIENTRY eglReleaseThread(void) {
    if (desktop_clients::isOn()) standard::releaseThread();
    return succeed(EGL_TRUE);
}
