#include "host/platform/x11/context.h"

#include <span>
#include <vector>

#include "host/platform/x11/glx.h"
#include "host/platform/x11/pixel_format.h"
#include "host/platform/x11/x_errors.h"

namespace host::platform::x11 {

namespace {

// Without a version the host creates its highest one that is compatible with the oldest.
constexpr int legacyAttributes[] = {GLX_CONTEXT_PROFILE_MASK_ARB, GLX_CONTEXT_COMPATIBILITY_PROFILE_BIT_ARB};
constexpr int coreAttributes[] = {GLX_CONTEXT_MAJOR_VERSION_ARB, 3,
                                  GLX_CONTEXT_MINOR_VERSION_ARB, 2,
                                  GLX_CONTEXT_PROFILE_MASK_ARB,  GLX_CONTEXT_CORE_PROFILE_BIT_ARB};

bool isConfigless(const PixelFormat &format) {
    return format.fitsAnyDrawable && format.connection.hasGlxExtension("GLX_EXT_no_config_context");
}

std::vector<int> desktopAttributes(const PixelFormat &format) {
    const auto &[major, minor, profileMask, flags, checksNoErrors] = format.desktop;
    std::vector<int> list{GLX_CONTEXT_MAJOR_VERSION_ARB, major, GLX_CONTEXT_MINOR_VERSION_ARB, minor};
    list.insert(list.end(), {GLX_CONTEXT_PROFILE_MASK_ARB, profileMask});
    // A context that does check keeps the promise too.
    const bool canCheckNone = format.connection.hasGlxExtension("GLX_ARB_create_context_no_error");
    if (checksNoErrors && canCheckNone) list.insert(list.end(), {GLX_CONTEXT_OPENGL_NO_ERROR_ARB, True});
    return list;
}

std::vector<int> versionAttributes(const PixelFormat &format) {
    if (format.desktop.major) return desktopAttributes(format);
    const std::span<const int> ofProfile =
        format.profile == profileLegacy ? std::span<const int>(legacyAttributes) : coreAttributes;
    return {ofProfile.begin(), ofProfile.end()};
}

std::vector<int> contextAttributes(const PixelFormat &format) {
    std::vector<int> list = versionAttributes(format);
    int flags = format.desktop.flags;
    const bool isOnDemand = robustContexts(format.connection) == robustOnDemand;
    // Where all contexts are robust, the flag only changes what an application reads of its own.
    if (format.isRobust && (isOnDemand || format.desktop.major)) flags |= GLX_CONTEXT_ROBUST_ACCESS_BIT_ARB;
    if (format.losesContextOnReset && isOnDemand) {
        list.insert(list.end(), {GLX_CONTEXT_RESET_NOTIFICATION_STRATEGY_ARB, GLX_LOSE_CONTEXT_ON_RESET_ARB});
    }
    if (flags) list.insert(list.end(), {GLX_CONTEXT_FLAGS_ARB, flags});
    // Without a config, libGLX selects the vendor by the screen.
    if (isConfigless(format)) list.insert(list.end(), {GLX_SCREEN, format.connection.screen()});
    list.push_back(None);
    return list;
}

GLXContext create(const PixelFormat &format, GLXContext share) {
    auto &connection = format.connection;
    const bool isLegacy = format.profile == profileLegacy;
    if (!connection.hasGlxExtension("GLX_ARB_create_context_profile")) {
        if (!isLegacy) return nullptr;
        return glx().createContext(connection.display(), format.config.handle, GLX_RGBA_TYPE, share, True);
    }
    static const auto createAttribs = findGlxFunction<PFNGLXCREATECONTEXTATTRIBSARBPROC>("glXCreateContextAttribsARB");
    if (!createAttribs) return nullptr;
    return createAttribs(connection.display(), isConfigless(format) ? nullptr : format.config.handle, share, True,
                         contextAttributes(format).data());
}

constexpr uintptr_t released = 1;

// The address identifies the thread.
constinit thread_local const int threadWord __attribute__((tls_model("initial-exec"))) = 0;

uintptr_t ownWord() {
    return reinterpret_cast<uintptr_t>(&threadWord);
}

void destroy(ContextContainer &container) {
    if (!container.connection.isLost()) {
        Display *display = container.connection.display();
        glx().destroyContext(display, container.context);
        if (container.placeholder) glx().destroyPbuffer(display, container.placeholder);
    }
    delete &container;
}

} // namespace

ContextContainer *createContext(const PixelFormat *format, ContextContainer *share) {
    if (!format || format->connection.isLost()) return nullptr;
    keepLossesFromProcess();
    // GLX shares within a connection only.
    if (share && &share->connection != &format->connection) return nullptr;
    const GLXContext context = create(*format, share ? share->context : nullptr);
    if (!context) return nullptr;
    return new ContextContainer{.connection = format->connection,
                                .config = format->config,
                                .context = context,
                                .attachment = {},
                                .swapInterval = {}};
}

void releaseContext(ContextContainer *container) {
    if (container->holder.fetch_or(released) == 0) destroy(*container);
}

bool canHold(const ContextContainer &container) {
    const uintptr_t holder = container.holder.load(std::memory_order_acquire) & ~released;
    return holder == 0 || holder == ownWord();
}

void hold(ContextContainer &container) {
    // The context is already held if its binding was saved, and its owner may have released it since.
    if (!container.holder.load(std::memory_order_relaxed)) container.holder.store(ownWord(), std::memory_order_relaxed);
}

void letGo(ContextContainer &container) {
    if (container.holder.fetch_and(released) & released) destroy(container);
}

} // namespace host::platform::x11
