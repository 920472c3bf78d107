#include "egl/binding.h"

#include <atomic>

#include "egl/desktop_clients.h"
#include "egl/refusal.h"
#include "egl/state.h"
#include "egl/thread_record.h"
#include "foundation/log.h"
#include "preferences/host_configuration.h"

namespace egl {

namespace {

using refusals::Rule;

// Records the rule only: whether the bind fails is decided elsewhere, and callers set the error.
bool refuseBind(Rule rule, const Context &context) {
    refusals::lastNote = {rule, {.major = context.attribs.esMajor, .minor = context.attribs.esMinor}};
    return false;
}

// The share context's back-end context has to exist before it can be given to the back end. Works along a whole chain.
// Contexts of desktop OpenGL have nothing to give.
void primeShareContext(Context &context, const SurfacePair &surfaces) {
    const auto &share = context.shareContext;
    if (!share || share->isDesktop() || share->esContext.load() || !share->hostContext()) return;
    BindClaim claim(*share);
    if (!claim.isHeld()) return;
    if (bindContext(share, surfaces)) claim.keep();
    // Before the claim ends: another thread may wait for it, and the host refuses a context that is current here.
    (void)host::makeHostContextCurrent(nullptr, nullptr);
    unbindCurrent(context.display);
}

// At every bind to a window, the same one too, for as long as there is somebody to tell. A window without a title sends
// an empty one.
void postWindowTitle(const Surface *draw) {
    const auto *window = draw ? draw->hostSurface.get() : nullptr;
    if (!window || window->isPBuffer() || window->isPixmap() || !state().uiLink().isAttached()) return;
    if (getHostConfiguration() & CONFIG_NO_WINDOW_TITLE) return;
    state().uiLink().post(ui::messages::windowTitle(window->title()));
}

void tellOfHostWithoutContext(const ContextAttribs &attribs) {
    static std::atomic<bool> isTold = false;
    if (isTold.exchange(true)) return;
    const char *needed = attribs.legacyClient ? "the compatibility profile" : "version 3.2 or above";
    logMessage(LogError, "%s%s%s%s", "The host has given no OpenGL context of ", needed, " for OpenGL ES ",
               attribs.legacyClient ? "1" : "2 and 3");
}

// What the context reads from, if that is not what it draws to. On devices contexts read what they draw.
const glove::ISurface *readObject(const SurfacePair &surfaces) {
    const bool isOther = desktop_clients::isOn() && surfaces.read && surfaces.read != surfaces.draw;
    return isOther ? surfaces.read->hostSurface.get() : nullptr;
}

// Makes the back-end context at the first bind and tells it the attributes at every later one.
bool bindEsContext(Context &context, host::HostBinding binding) {
    if (const zvEsContext esContext = context.esContext) {
        State::setEsContextAttribs(context.esLibrary, esContext, context.attribs);
        return true;
    }
    // A back-end context sets its host context up: it waits for a bind that makes that current.
    if (binding != host::HostBinding::current) return true;
    Context *share = context.shareContext.get();
    const SharedEsContext shared(share);
    context.esContext = state().createEsContext(context.esLibrary, context.attribs, context.display, shared.get());
    if (!context.esContext.load()) return refuseBind(Rule::backEndRefuses, context);
    if (share && !share->isDesktop() && share->attribs.requestedMajor != context.attribs.requestedMajor) {
        logMessage(LogWarning, "Attempting to share two contexts of differing API versions is unsupported.");
    }
    return true;
}

// Does what eglDestroyContext put off.
void endClaim(Context &context, Display &display) {
    if (context.pendingDestroy) display.destroyContext(context.handle);
    context.letGo();
    // Another thread may have seen the claim just before, and left the destruction to this one.
    if (context.pendingDestroy) display.destroyContext(context.handle);
}

} // namespace

BindClaim::BindClaim(Context &context) : m_context(context), m_isCurrent(threadRecord.current == &context) {
    if (!context.esContext.load()) m_firstBind = std::unique_lock(context.group->firstBinds);
    m_isTaken = !m_isCurrent && context.claim();
    if (isHeld() || m_firstBind) return;
    // The first bind of another context of the group may have it for a moment.
    m_firstBind = std::unique_lock(context.group->firstBinds);
    m_isTaken = context.claim();
}

BindClaim::~BindClaim() {
    if (m_isTaken) endClaim(m_context, m_context.display);
}

void showPixmap(const Context &current) {
    const Surface *const draw = current.surfaces.draw.get();
    if (draw && draw->hostSurface && draw->hostSurface->isPixmap()) draw->hostSurface->swapBuffers();
}

void unbindCurrent(Display &display) {
    // Held to the end: a destruction that was put off takes it from the thread.
    const auto current = currentContext();
    if (!current) return;
    showPixmap(*current);
    endClaim(*current, display);
    setCurrentContext(nullptr, nullptr);
}

bool bindContext(const std::shared_ptr<Context> &context, const SurfacePair &surfaces) {
    primeShareContext(*context, surfaces);
    if (!context->esLibrary.library.isLoaded()) return refuseBind(Rule::noBackEnd, *context);
    const Surface *const draw = surfaces.draw.get();
    postWindowTitle(draw);

    if (threadRecord.current && threadRecord.current->surfaces.draw.get() != draw) showPixmap(*threadRecord.current);

    const auto *hostContext = context->claimedHostContext();
    const auto binding = draw ? host::makeHostContextCurrent(hostContext, draw->hostSurface.get(), readObject(surfaces))
                              : host::makeHostContextCurrentWithoutDrawable(hostContext);
    if (binding == host::HostBinding::failed) return refuseBind(Rule::hostBind, *context);
    // A host that refused the context at its creation shows here first.
    if (!hostContext || !hostContext->context->container()) {
        tellOfHostWithoutContext(context->attribs);
        return refuseBind(Rule::noHostContext, *context);
    }
    // The application must not inherit an error that the bind left. Contexts of the host itself keep theirs.
    if (!context->isDesktop()) state().hostEGL(binding == host::HostBinding::current).sweepError();

    // Never taken back by a later bind to a linear surface: a back end sees it for good once it was set.
    if (draw && draw->isSrgb) context->attribs.srgbFramebuffer = 1;
    if (!bindEsContext(*context, binding)) return false;

    if (context->surfaces.draw != surfaces.draw || context->surfaces.read != surfaces.read)
        context->surfaces = surfaces;
    setCurrentContext(context, &context->display);
    context->attribs.surfaceless = 0;
    return true;
}

bool bindSurfaceless(const std::shared_ptr<Context> &context) {
    if (desktop_clients::isOn()) return bindContext(context, {});
    const auto surface = context->display.createPrivateSurface(*context);
    context->attribs.surfaceless = 1;
    return bindContext(context, {surface, surface});
}

} // namespace egl
