#include "capability/host_egl.h"

#include <type_traits>

namespace host {

using capability::bindFeature;
using capability::HostGlView;

namespace {

template <capability::Feature feature, typename Function>
void take(const capability::FeatureBinding<feature> &binding,
          std::type_identity_t<capability::EntryPoint<feature>> entry, Function &function) {
    function = binding.template function<Function>(entry);
}

} // namespace

EGL::EGL(const DynamicLibrary &library) {
    bindFeature(get, {}, library);
    bindFeature(openGl, {}, library);
    const HostGlView view(get, openGl);
    m_hasHost = capability::hostGlVersion(view) != 0;
    bindFeature(fenceSync, view, library);
    bindFeature(textureUpload, view, library);
    bindFeature(textures, view, library);

    take(fenceSync, "glClientWaitSync", glClientWaitSync);
    take(fenceSync, "glDeleteSync", glDeleteSync);
    take(fenceSync, "glFenceSync", glFenceSync);
    take(fenceSync, "glGetSynciv", glGetSynciv);
    take(fenceSync, "glWaitSync", glWaitSync);
    take(openGl, "glGetError", glGetError);
    take(textureUpload, "glCopyTexImage2D", glCopyTexImage2D);
    take(textures, "glBindTexture", glBindTexture);
}

} // namespace host
