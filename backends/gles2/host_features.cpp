#include "host_features.h"

#include "host_gl.h"

namespace {

constexpr std::string_view esExtensionNames[] = {
#define ES_EXTENSION(name) name,
#include "data/es_extensions.def"
#undef ES_EXTENSION
};

} // namespace

HostFeatures::HostFeatures() {
    const HostGl &gl = hostGl();
    GLint major = 0;
    GLint minor = 0;
    GLint count = 0;
    gl.getIntegerv(GL_MAJOR_VERSION, &major);
    gl.getIntegerv(GL_MINOR_VERSION, &minor);
    m_version = major * 10 + minor;
    gl.getIntegerv(GL_NUM_EXTENSIONS, &count);
    for (GLint index = 0; index < count; ++index) {
        const GLubyte *const name = gl.getStringi(GL_EXTENSIONS, static_cast<GLuint>(index));
        if (name) m_extensions.emplace(reinterpret_cast<const char *>(name));
    }
}

bool HostFeatures::carries(int version, std::string_view extensions) const {
    if (version != 0 && m_version >= version) return true;
    while (!extensions.empty()) {
        const size_t end = std::min(extensions.find(' '), extensions.size());
        if (m_extensions.contains(extensions.substr(0, end))) return true;
        extensions.remove_prefix(std::min(end + 1, extensions.size()));
    }
    return false;
}

std::vector<std::string> HostFeatures::esExtensions() const {
    std::vector<std::string> names;
    for (const std::string_view name : esExtensionNames) {
        if (m_extensions.contains(name)) names.emplace_back(name);
    }
    return names;
}
