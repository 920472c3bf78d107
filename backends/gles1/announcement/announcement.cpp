#include "announcement/announcement.h"

#include "announcement/extensions.h"
#include "common/per_back_end/host_gl.h"

#include <zelvane/back_end.h>

namespace {

std::string hostText(GLenum name) {
    const GLubyte *const text = hostGl().getString(name);
    return text ? reinterpret_cast<const char *>(text) : "";
}

// Nothing without a device profile.
std::optional<EsBlock> readDevice(const void *settings) {
    const char *const profile = settings ? zvSettingsProfileText(settings) : nullptr;
    return profile ? readEsBlock(profile, 1, 1) : std::nullopt;
}

std::string told(const std::optional<EsBlock> &device, std::string EsBlock::*field, GLenum hostName) {
    return device && !((*device).*field).empty() ? (*device).*field : hostText(hostName);
}

} // namespace

Announcement::Announcement(const HostFeatures &host, const void *settings) : Announcement(host, readDevice(settings)) {}

Announcement::Announcement(const HostFeatures &host, const std::optional<EsBlock> &device)
    : version("OpenGL ES-CM 1.1 Zelvane (" + hostText(GL_VERSION) + ')'),
      vendor(told(device, &EsBlock::vendor, GL_VENDOR)), renderer(told(device, &EsBlock::renderer, GL_RENDERER)),
      extensions(announcedExtensions(host, device)), limits(host, device) {}
