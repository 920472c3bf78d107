#include "host/probe_context.h"

#include <utility>

#include "host/pixel_format.h"

namespace host {

using platform::operations;

std::unique_ptr<HostProbeContext> createHostProbeContext(std::shared_ptr<glove::WSAPI> windowSystem) {
    auto record = std::make_unique<HostProbeContext>();
    record->windowSystem = std::move(windowSystem);
    // The format is requested twice, and the first one is never released.
    static_cast<void>(makeProbePixelFormat());
    record->probe = createHostContext({.format = makeProbePixelFormat(), .legacy = 0});
    record->previous = operations.saveBinding();
    record->previousHostContext = currentHostContext();

    const auto &context = *record->probe->context;
    const bool isBound = makeHostContextCurrentAsIs(context);
    if (isBound) setCurrentHostContext(context.number());
    record->isCurrent = isBound && context.container();
    return record;
}

bool isHostProbeCurrent(const HostProbeContext &probe) {
    return probe.isCurrent;
}

void destroyHostProbeContext(std::unique_ptr<HostProbeContext> probe) {
    if (!probe->previous) {
        operations.clearCurrentContext();
        return;
    }
    operations.restoreBinding(probe->previous);
    setCurrentHostContext(probe->previousHostContext);
}

} // namespace host
