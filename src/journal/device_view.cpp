#include "journal/device_view.h"

#include <algorithm>
#include <cstdio>
#include <sstream>

#include <nlohmann/json.hpp>

#include "foundation/gl_types.h"

namespace journal {

template <typename Type>
Type DeviceView::ask(const gl::FunctionTable &table, const char *name) const {
    return reinterpret_cast<Type>(table.ask(table.context, name));
}

DeviceView::DeviceView(const gl::FunctionTable &table)
    : m_getString(ask<decltype(m_getString)>(table, "glGetString")),
      m_getIntegerv(ask<decltype(m_getIntegerv)>(table, "glGetIntegerv")),
      m_getError(ask<decltype(m_getError)>(table, "glGetError")) {
    if (!m_getString || !m_getIntegerv) return;
    readVersion();
    readExtensions(table);
    readCompressedFormats();
    for (const EsEnumerant &enumerant : esEnumerants())
        m_lacking[enumerant.value] = !carries(enumerant.origin);
    // Clears the errors of queries that this context does not support.
    (void)takeError();
}

std::string DeviceView::string(uint32_t name) const {
    const auto *text = m_getString ? m_getString(name) : nullptr;
    return text ? reinterpret_cast<const char *>(text) : "";
}

// "OpenGL ES 3.1 ..." or "OpenGL ES-CM 1.1 ...".
void DeviceView::readVersion() {
    const std::string text = string(GL_VERSION);
    const size_t digit = text.find_first_of("0123456789");
    int major = 0, minor = 0;
    if (digit != std::string::npos && sscanf(text.c_str() + digit, "%d.%d", &major, &minor) == 2)
        m_version = major * 10 + minor;
}

void DeviceView::readExtensions(const gl::FunctionTable &table) {
    const auto getStringi =
        m_version >= 30 ? ask<const unsigned char *(*)(uint32_t, uint32_t)>(table, "glGetStringi") : nullptr;
    if (!getStringi) {
        std::istringstream words(string(GL_EXTENSIONS));
        for (std::string word; words >> word;)
            m_extensions.insert(word);
        return;
    }
    int32_t count = 0;
    m_getIntegerv(GL_NUM_EXTENSIONS, &count);
    for (int32_t i = 0; i < count; ++i) {
        const auto *name = getStringi(GL_EXTENSIONS, static_cast<uint32_t>(i));
        if (name) m_extensions.insert(reinterpret_cast<const char *>(name));
    }
}

void DeviceView::readCompressedFormats() {
    const auto count = limit(GL_NUM_COMPRESSED_TEXTURE_FORMATS);
    if (!count || *count <= 0) return;
    m_compressedFormats.resize(static_cast<size_t>(*count));
    m_getIntegerv(GL_COMPRESSED_TEXTURE_FORMATS, m_compressedFormats.data());
}

bool DeviceView::carries(const EsOrigin &origin) const {
    const bool isEs1 = m_version < 20;
    if (isEs1 ? origin.isInEs1 : origin.since != 0 && origin.since <= m_version) return true;
    std::string_view rest = origin.extensions;
    while (!rest.empty()) {
        const size_t end = std::min(rest.find(' '), rest.size());
        if (m_extensions.contains(rest.substr(0, end))) return true;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return false;
}

bool DeviceView::announcesCompressedFormat(uint32_t format) const {
    return std::ranges::find(m_compressedFormats, static_cast<int32_t>(format)) != m_compressedFormats.end();
}

std::optional<int32_t> DeviceView::limit(uint32_t name) {
    const auto known = m_limits.find(name);
    if (known != m_limits.end()) return known->second;
    int32_t value = -1;
    if (m_getIntegerv) m_getIntegerv(name, &value);
    const bool isTold = takeError() == 0 && value >= 0;
    return m_limits[name] = isTold ? std::optional(value) : std::nullopt;
}

Json DeviceView::words() const {
    return {{"version", string(GL_VERSION)},
            {"vendor", string(GL_VENDOR)},
            {"renderer", string(GL_RENDERER)},
            {"extensions", m_extensions}};
}

} // namespace journal
