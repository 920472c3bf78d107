#include "egl/binding.h"

#include <atomic>
#include <utility>

#include "egl/desktop_clients.h"
#include "egl/refusal.h"
#include "egl/state.h"
#include "egl/thread_record.h"
#include "foundation/log.h"
#include "preferences/host_configuration.h"

namespace egl {

namespace {

using refusals::Rule;

// Only records the rule. The callers decide whether the bind fails, and set the error.
bool refuseBind(Rule rule, const Context &context) {
    refusals::lastNote = {rule, {.major = context.attribs.esMajor, .minor = context.attribs.esMinor}};
    return false;
}

// The back end requires the share context's back-end context. Creates those of a whole chain.
// Contexts of desktop OpenGL need none.
void primeShareContext(Context &context, const SurfacePair &surfaces) {
    const auto &share = context.shareContext;
    if (!share || share->isDesktop() || share->esContext.load() || !share->hostContext()) return;
    BindClaim claim(*share);
    if (!claim.isHeld()) return;
    if (bindContext(std::shared_ptr(share), surfaces)) claim.keep();
    // Unbound before the claim ends: another thread may wait for the context, and the host does not bind a context that
    // is current here.
    (void)host::makeHostContextCurrent(nullptr, nullptr);
    unbindCurrent(context.display);
}

// Called at every bind to a window, even the same one, if a GUI is connected. A window without a title sends an empty
// one.
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

// The object that the context reads from if it is not the drawn one. On devices contexts read what they draw.
const glove::ISurface *readObject(const SurfacePair &surfaces) {
    const bool isOther = desktop_clients::isOn() && surfaces.read && surfaces.read != surfaces.draw;
    return isOther ? surfaces.read->hostSurface.get() : nullptr;
}

// Creates the back-end context at the first bind and sets its attributes at every later one.
bool bindEsContext(Context &context, host::HostBinding binding) {
    if (const zvEsContext esContext = context.esContext) {
        State::setEsContextAttribs(context.esLibrary, esContext, context.attribs);
        return true;
    }
    // The back-end context initialises its host context when created, so that must be current.
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

// Performs a destruction that eglDestroyContext deferred.
void endClaim(Context &context, Display &display) {
    if (context.pendingDestroy) display.destroyContext(context.handle);
    context.letGo();
    // Another thread may have deferred the destruction just before the claim ended.
    if (context.pendingDestroy) display.destroyContext(context.handle);
}

} // namespace

BindClaim::BindClaim(Context &context) : m_context(context), m_isCurrent(threadRecord.current == &context) {
    if (!context.esContext.load()) m_firstBind = std::unique_lock(context.group->firstBinds);
    m_isTaken = !m_isCurrent && context.claim();
    if (isHeld() || m_firstBind) return;
    // The first bind of another context of the group may have claimed it temporarily.
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
    if (!threadRecord.current) return;
    showPixmap(*threadRecord.current);
    // Keeps the context alive, since a deferred destruction removes the thread's reference.
    const auto current = std::move(threadRecord.hold->current);
    endClaim(*current, display);
    setCurrentContext(nullptr, nullptr);
}

bool bindContext(std::shared_ptr<Context> &&context, const SurfacePair &surfaces) {
    primeShareContext(*context, surfaces);
    if (!context->esLibrary.library.isLoaded()) return refuseBind(Rule::noBackEnd, *context);
    const Surface *const draw = surfaces.draw.get();
    postWindowTitle(draw);

    if (threadRecord.current && threadRecord.current->surfaces.draw.get() != draw) showPixmap(*threadRecord.current);

    const auto *hostContext = context->claimedHostContext();
    const auto binding = draw ? host::makeHostContextCurrent(hostContext, draw->hostSurface.get(), readObject(surfaces))
                              : host::makeHostContextCurrentWithoutDrawable(hostContext);
    if (binding == host::HostBinding::failed) return refuseBind(Rule::hostBind, *context);
    // If the host failed to create the context, the first bind reports it.
    if (!hostContext || !hostContext->context->container()) {
        tellOfHostWithoutContext(context->attribs);
        return refuseBind(Rule::noHostContext, *context);
    }
    // Clears an error that the bind generated on the host. Contexts of desktop OpenGL keep the application's errors.
    if (!context->isDesktop()) state().hostEGL(binding == host::HostBinding::current).sweepError();

    // A later bind to a linear surface does not reset it: the attribute remains set for the back end.
    if (draw && draw->isSrgb) context->attribs.srgbFramebuffer = 1;
    if (!bindEsContext(*context, binding)) return false;

    if (context->surfaces.draw != surfaces.draw || context->surfaces.read != surfaces.read)
        context->surfaces = surfaces;
    context->attribs.surfaceless = 0;
    Display &display = context->display;
    setCurrentContext(std::move(context), &display);
    return true;
}

bool bindSurfaceless(std::shared_ptr<Context> &&context) {
    if (desktop_clients::isOn()) return bindContext(std::move(context), {});
    const auto surface = context->display.createPrivateSurface(*context);
    context->attribs.surfaceless = 1;
    return bindContext(std::move(context), {surface, surface});
}

} // namespace egl
