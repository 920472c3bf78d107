#include "common/host_features.h"

#include "common/host_library.h"
#include "common/known_values.h"

#include <GLES3/gl3.h>

#include <algorithm>
#include <cstdio>

namespace {

// Looked up, since a direct reference would require a name that the back end may lack.
template <typename Function>
Function host(const char *name) {
    return reinterpret_cast<Function>(hostFunction(name));
}

const char *hostString(GLenum name) {
    const auto getString = host<decltype(&glGetString)>("glGetString");
    const GLubyte *const text = getString ? getString(name) : nullptr;
    return text ? reinterpret_cast<const char *>(text) : "";
}

template <typename Take>
void forEachWord(std::string_view text, Take take) {
    while (!text.empty()) {
        const size_t end = std::min(text.find(' '), text.size());
        if (end > 0) take(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

// Identifies the contexts of a host that have the same capabilities.
std::string contextKind() {
    GLint count = 0;
    const auto getIntegerv = host<decltype(&glGetIntegerv)>("glGetIntegerv");
    const std::string version = hostString(GL_VERSION);
    // Older hosts lack this query and generate an error for it.
    if (getIntegerv && !version.empty() && version.front() >= '3') getIntegerv(GL_NUM_EXTENSIONS, &count);
    return version + '\n' + hostString(GL_RENDERER) + '\n' + std::to_string(count);
}

} // namespace

std::shared_ptr<const HostFeatures> HostFeatures::ofCurrentContext() {
    return KnownValues<std::string, HostFeatures>::find(
        contextKind(), [] { return std::shared_ptr<const HostFeatures>(new HostFeatures); });
}

HostFeatures::HostFeatures() {
    int major = 0;
    int minor = 0;
    if (std::sscanf(hostString(GL_VERSION), "%d.%d", &major, &minor) == 2) m_version = major * 10 + minor;
    if (m_version >= 30) {
        readExtensionList();
    } else {
        readExtensionString();
    }
}

// A core context has only the list, a host before OpenGL 3.0 only the string.
void HostFeatures::readExtensionList() {
    const auto getIntegerv = host<decltype(&glGetIntegerv)>("glGetIntegerv");
    const auto getStringi = host<decltype(&glGetStringi)>("glGetStringi");
    if (!getIntegerv || !getStringi) return;
    GLint count = 0;
    getIntegerv(GL_NUM_EXTENSIONS, &count);
    for (GLint index = 0; index < count; ++index) {
        const GLubyte *const name = getStringi(GL_EXTENSIONS, static_cast<GLuint>(index));
        if (name) m_extensions.emplace(reinterpret_cast<const char *>(name));
    }
}

void HostFeatures::readExtensionString() {
    forEachWord(hostString(GL_EXTENSIONS), [&](std::string_view name) { m_extensions.emplace(name); });
}

bool HostFeatures::carries(int version, std::string_view extensions) const {
    if (version != 0 && m_version >= version) return true;
    bool found = false;
    forEachWord(extensions, [&](std::string_view name) { found = found || hasExtension(name); });
    return found;
}
