#include "egl/binding.h"

#include "egl/state.h"
#include "egl/thread_record.h"
#include "foundation/log.h"
#include "preferences/host_configuration.h"

namespace egl {

namespace {

// The share context's back-end context has to exist before it can be given to the back end. Works along a whole chain.
void primeShareContext(Context &context, const std::shared_ptr<Surface> &draw, const std::shared_ptr<Surface> &read) {
    Context *share = context.shareContext.get();
    if (!share || !share->hostContext() || share->esContext.load()) return;
    (void)bindContext(*share, draw, read);
    unbindCurrent(context.display);
    (void)host::makeHostContextCurrent(nullptr, {});
}

// At every bind to a window, the same one too: titles change and nobody tells. A window without a title sends an empty
// one.
void postWindowTitle(const Surface *draw) {
    const auto window = draw ? draw->hostSurface : nullptr;
    if (!window || window->isPBuffer() || getHostConfiguration() & CONFIG_NO_WINDOW_TITLE) return;
    state().uiLink().post(ui::messages::windowTitle(window->title()));
}

// The application must not inherit an error that the bind left.
void sweepHostError() {
    const auto hostEGL = state().hostEGL();
    if (hostEGL->glGetError) hostEGL->glGetError();
}

// Makes the back-end context at the first bind and tells it the attributes at every later one.
bool bindEsContext(Context &context) {
    if (const zvEsContext esContext = context.esContext) {
        State::setEsContextAttribs(esContext, context.attribs);
        return true;
    }
    Context *share = context.shareContext.get();
    const zvEsContext shareEsContext = share ? share->esContext.load() : nullptr;
    context.esContext = state().createEsContext(context.attribs, context.display, shareEsContext);
    if (!context.esContext.load()) return false;
    if (share && share->attribs.requestedMajor != context.attribs.requestedMajor) {
        logMessage(LogWarning, "Attempting to share two contexts of differing API versions is unsupported.");
    }
    return true;
}

} // namespace

void unbindCurrent(Display &display) {
    if (const auto current = currentContext()) {
        current->boundToThread = false;
        if (current->pendingDestroy) display.destroyContext(current->handle);
        if (current->deletesWhenUnbound) (void)current->deleteEsContext();
    }
    setCurrentContext(nullptr, nullptr);
}

bool bindContext(Context &context, const std::shared_ptr<Surface> &draw, const std::shared_ptr<Surface> &read) {
    primeShareContext(context, draw, read);
    if (!context.esLibrary.isLoaded()) return false;
    postWindowTitle(draw.get());

    const std::weak_ptr<glove::ISurface> drawable = draw ? draw->hostSurface : nullptr;
    const auto hostContext = context.hostContext();
    if (!host::makeHostContextCurrent(hostContext.get(), drawable)) return false;
    // A host that refused the context at its creation shows here first.
    if (!hostContext || !hostContext->context || !hostContext->context->container()) return false;
    sweepHostError();

    // Never taken back by a later bind to a linear surface; back ends rely on seeing it once set.
    if (draw && draw->attribute(EGL_GL_COLORSPACE) == EGL_GL_COLORSPACE_SRGB) context.attribs.srgbFramebuffer = 1;
    if (!bindEsContext(context)) return false;

    context.setSurfaces({draw, read});
    setCurrentContext(context.shared_from_this(), &context.display);
    context.boundToThread = true;
    context.setSurfaceless(false);
    return true;
}

bool bindSurfaceless(Context &context) {
    constexpr EGLint attributes[] = {EGL_WIDTH, 1, EGL_HEIGHT, 1, EGL_LARGEST_PBUFFER, 1, EGL_NONE};
    const auto surface = context.display.createPbufferSurface(*context.config, attributes);
    context.setSurfaceless(true);
    return bindContext(context, surface, surface);
}

} // namespace egl
