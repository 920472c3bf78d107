#include "capability/host_gl_view.h"

#include <cstring>

#include "capability/feature_binding.h"

namespace capability {

namespace {

constexpr uint32_t glNumExtensions = 0x821D;

template <typename Function>
void take(const FeatureBinding &get, const char *name, Function &function) {
    function = get.function<Function>(Feature::get, name);
}

} // namespace

HostGlView::HostGlView(const FeatureBinding *get, const FeatureBinding *openGl) : m_canAsk(get && openGl) {
    if (!get) return;
    take(*get, "glGetString", m_getString);
    take(*get, "glGetStringi", m_getStringi);
    take(*get, "glGetIntegerv", m_getIntegerv);
}

int32_t HostGlView::listedExtensionCount() const {
    int32_t count = 0;
    if (m_getIntegerv) m_getIntegerv(glNumExtensions, &count);
    return count;
}

const char *HostGlView::listedExtension(int32_t index) const {
    return m_getStringi(glExtensions, static_cast<uint32_t>(index));
}

GlVersion hostGlVersion(const HostGlView &view) {
    return view.canAsk() ? parseGlVersion(view.string(glVersionText)) : unknownGlVersion;
}

bool hostHasExtension(const HostGlView &view, const char *name) {
    if (!view.canAsk()) return true;
    if (!name || !*name) return false;
    if (!view.listsExtensions(hostGlVersion(view))) {
        const char *text = view.string(glExtensions);
        return text && strstr(text, name);
    }
    const int32_t count = view.listedExtensionCount();
    for (int32_t index = 0; index < count; ++index) {
        const char *listed = view.listedExtension(index);
        if (listed && !strcmp(listed, name)) return true;
    }
    return false;
}

bool hostHasExtensionId(const HostGlView &view, HostExtension id) {
    return hostHasExtension(view, hostExtensionName(id));
}

} // namespace capability
