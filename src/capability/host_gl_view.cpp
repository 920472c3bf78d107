#include "capability/host_gl_view.h"

#include <cstring>

#include "capability/feature_binding.h"
#include "foundation/gl_types.h"

namespace capability {

HostGlView::HostGlView(const FeatureBinding<Feature::get> &get, const FeatureBinding<Feature::openGl> &)
    : m_canAsk(true), m_getString(get.function<decltype(m_getString)>("glGetString")),
      m_getStringi(get.function<decltype(m_getStringi)>("glGetStringi")),
      m_getIntegerv(get.function<decltype(m_getIntegerv)>("glGetIntegerv")) {}

int32_t HostGlView::listedExtensionCount() const {
    int32_t count = 0;
    if (m_getIntegerv) m_getIntegerv(GL_NUM_EXTENSIONS, &count);
    return count;
}

const char *HostGlView::listedExtension(int32_t index) const {
    return m_getStringi(GL_EXTENSIONS, static_cast<uint32_t>(index));
}

GlVersion hostGlVersion(const HostGlView &view) {
    return view.canAsk() ? parseGlVersion(view.string(GL_VERSION)) : unknownGlVersion;
}

bool hostHasExtension(const HostGlView &view, const char *name) {
    if (!view.canAsk()) return true;
    if (!name || !*name) return false;
    if (!view.listsExtensions(hostGlVersion(view))) {
        const char *text = view.string(GL_EXTENSIONS);
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
