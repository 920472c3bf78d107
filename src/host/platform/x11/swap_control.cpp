#include "host/platform/x11/swap_control.h"

#include "host/platform/x11/context.h"
#include "host/platform/x11/current.h"
#include "host/platform/x11/glx.h"

namespace host::platform::x11 {

void setSwapInterval(ContextContainer *container, int32_t interval) {
    if (!canHold(*container)) return;
    container->swapInterval = interval;
    if (currentContext() == container) applySwapInterval(*container);
}

void applySwapInterval(const ContextContainer &container) {
    const auto &attachment = container.attachment;
    if (!container.swapInterval || !attachment.view.window) return;
    const int32_t interval = *container.swapInterval;
    static const auto swapIntervalExt = findGlxFunction<PFNGLXSWAPINTERVALEXTPROC>("glXSwapIntervalEXT");
    static const auto swapIntervalMesa = findGlxFunction<PFNGLXSWAPINTERVALMESAPROC>("glXSwapIntervalMESA");
    static const auto swapIntervalSgi = findGlxFunction<PFNGLXSWAPINTERVALSGIPROC>("glXSwapIntervalSGI");
    const auto &connection = container.connection;
    if (swapIntervalExt && connection.hasGlxExtension("GLX_EXT_swap_control")) {
        swapIntervalExt(connection.display(), attachment.drawable, interval);
    } else if (swapIntervalMesa && connection.hasGlxExtension("GLX_MESA_swap_control")) {
        swapIntervalMesa(static_cast<unsigned>(interval));
    } else if (swapIntervalSgi && connection.hasGlxExtension("GLX_SGI_swap_control")) {
        swapIntervalSgi(interval);
    }
}

} // namespace host::platform::x11
