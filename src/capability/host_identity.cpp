#include "capability/host_identity.h"

#include "capability/feature_sets.h"
#include "capability/host_gl_view.h"
#include "capability/host_probe.h"
#include "foundation/gl_types.h"

namespace capability {

std::optional<HostIdentity> probeHostIdentity(const DynamicLibrary &library,
                                              const std::shared_ptr<glove::WSAPI> &windowSystem) {
    const HostProbe probe(windowSystem);
    if (!probe.isCurrent()) return std::nullopt;
    const HostGlView view = EsBaseFeatures(library).view();
    const auto text = [&](uint32_t name) {
        const char *string = view.string(name);
        return std::string(string ? string : "");
    };
    return HostIdentity{text(GL_VENDOR), text(GL_RENDERER), text(GL_VERSION)};
}

} // namespace capability
