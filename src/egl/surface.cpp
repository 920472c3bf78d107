#include "egl/surface.h"

#include "foundation/attribute_list.h"

namespace egl {

DrawableSizes drawableSizes(const Config &config) {
    return {config.attributeOr0(EGL_RED_SIZE),   config.attributeOr0(EGL_GREEN_SIZE),
            config.attributeOr0(EGL_BLUE_SIZE),  config.attributeOr0(EGL_ALPHA_SIZE),
            config.attributeOr0(EGL_DEPTH_SIZE), config.attributeOr0(EGL_STENCIL_SIZE),
            config.attributeOr0(EGL_SAMPLES)};
}

const host::platform::PixelFormat *surfaceFormat(const Config &config) {
    return config.hostConfig() ? config.hostConfig()->surfaceFormat() : nullptr;
}

Surface::Surface(uint64_t handle, std::shared_ptr<glove::ISurface> hostSurface, const Config &config,
                 const EGLint *attributes)
    : handle(handle), isSrgb(AttributeList(attributes).valueOr(EGL_GL_COLORSPACE, 0) == EGL_GL_COLORSPACE_SRGB),
      sizes(drawableSizes(config)), format(surfaceFormat(config)),
      canPreserve(config.attributeOr0(EGL_SURFACE_TYPE) & EGL_SWAP_BEHAVIOR_PRESERVED_BIT),
      hostSurface(std::move(hostSurface)), m_attributes{{EGL_RENDER_BUFFER, EGL_BACK_BUFFER},
                                                        {EGL_SWAP_BEHAVIOR, EGL_BUFFER_DESTROYED},
                                                        {EGL_TEXTURE_FORMAT, EGL_NO_TEXTURE},
                                                        {EGL_CONFIG_ID, config.attributeOr0(EGL_CONFIG_ID)},
                                                        {EGL_GL_COLORSPACE, EGL_GL_COLORSPACE_LINEAR}} {
    for (const auto &[name, value] : AttributeList(attributes))
        m_attributes[name] = value;
}

EGLint Surface::query(EGLint name, EGLint *value) {
    const bool isOfHost = name == EGL_WIDTH || name == EGL_HEIGHT || name == EGL_BUFFER_AGE_KHR;
    if (!isOfHost && !m_attributes.contains(name)) {
        // Without that attribute, EGL_LARGEST_PBUFFER succeeds and writes nothing.
        return name == EGL_LARGEST_PBUFFER ? EGL_SUCCESS : EGL_BAD_ATTRIBUTE;
    }
    if (!value) return EGL_BAD_PARAMETER;
    *value = attribute(name);
    return EGL_SUCCESS;
}

EGLint Surface::attribute(EGLint name) {
    switch (name) {
    case EGL_WIDTH:
        return hostSurface ? hostSurface->width() : 0;
    case EGL_HEIGHT:
        return hostSurface ? hostSurface->height() : 0;
    case EGL_BUFFER_AGE_KHR:
        // Always 0, so that applications redraw the whole frame.
        bufferAgeQueried = true;
        return 0;
    default:
        return storedOr(name, 0);
    }
}

EGLint Surface::storedOr(EGLint name, EGLint otherwise) const {
    const auto found = m_attributes.find(name);
    return found == m_attributes.end() ? otherwise : found->second;
}

Surface::Size Surface::size() const {
    return hostSurface ? Size(hostSurface->width(), hostSurface->height()) : Size();
}

EGLint Surface::age() {
    const std::lock_guard lock(m_frameMutex);
    m_countsFrames = true;
    return canPreserve && m_frameSize && *m_frameSize == size() ? 1 : 0;
}

void Surface::swap() {
    if (hostSurface) hostSurface->swapBuffers();
    {
        const std::lock_guard lock(m_frameMutex);
        if (m_countsFrames) m_frameSize = size();
    }
    damageRegionSet = false;
    bufferAgeQueried = false;
}

} // namespace egl
