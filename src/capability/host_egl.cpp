#include "capability/host_egl.h"

namespace host {

using capability::bindFeature;
using capability::Feature;
using capability::FeatureBinding;
using capability::HostGlView;

namespace {

template <typename Function>
void take(const FeatureBinding &binding, Feature feature, const char *name, Function &function) {
    function = binding.function<Function>(feature, name);
}

} // namespace

EGL::EGL(const DynamicLibrary &library) {
    bindFeature(Feature::get, get, {}, library);
    bindFeature(Feature::openGl, openGl, {}, library);
    const HostGlView view(&get, &openGl);
    m_hasHost = capability::hostGlVersion(view) != 0;
    bindFeature(Feature::fenceSync, fenceSync, view, library);
    bindFeature(Feature::textureUpload, textureUpload, view, library);
    bindFeature(Feature::textures, textures, view, library);

    take(fenceSync, Feature::fenceSync, "glClientWaitSync", glClientWaitSync);
    take(fenceSync, Feature::fenceSync, "glDeleteSync", glDeleteSync);
    take(fenceSync, Feature::fenceSync, "glFenceSync", glFenceSync);
    take(fenceSync, Feature::fenceSync, "glGetSynciv", glGetSynciv);
    take(fenceSync, Feature::fenceSync, "glWaitSync", glWaitSync);
    take(openGl, Feature::openGl, "glGetError", glGetError);
    take(textureUpload, Feature::textureUpload, "glCopyTexImage2D", glCopyTexImage2D);
    take(textures, Feature::textures, "glBindTexture", glBindTexture);
}

} // namespace host
