#include "announcement/announcement.h"

#include "common/desktop_clients.h"
#include "common/known_values.h"
#include "common/per_back_end/host_gl.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <span>
#include <tuple>

namespace {

struct EsExtension {
    std::string_view name;
    bool isForAll;
};
constexpr EsExtension esExtensions[] = {
#define ES_EXTENSION(name, isForAll) {name, isForAll},
#include "data/es_extensions.def"
#undef ES_EXTENSION
};

struct Carried {
    std::string_view name;
    int version;
    std::string_view hostExtensions;
    GLint esMajor;
};
struct Bundle {
    std::string_view name;
    std::string_view parts;
};

#define CARRIED(...)
#define CARRIED_IN_ES3(...)
#define BUNDLE(...)

#undef CARRIED
#undef CARRIED_IN_ES3
#define CARRIED(extension, version, hostExtensions) {extension, version, hostExtensions, 2},
#define CARRIED_IN_ES3(extension, version, hostExtensions) {extension, version, hostExtensions, 3},
constexpr Carried carriedExtensions[] = {
#include "announcement/carried_extensions.def"
};
#undef CARRIED
#undef CARRIED_IN_ES3
#define CARRIED(...)
#define CARRIED_IN_ES3(...)

#undef BUNDLE
#define BUNDLE(extension, parts) {extension, parts},
constexpr Bundle bundles[] = {
#include "announcement/carried_extensions.def"
};
#undef BUNDLE
#undef CARRIED_IN_ES3
#undef CARRIED

struct CompressedFormat {
    GLenum format;
    std::string_view extensions;
};
constexpr CompressedFormat compressedFormatRows[] = {
#define COMPRESSED_FORMAT(format, extensions) {format, extensions},
#include "announcement/compressed_formats.def"
#undef COMPRESSED_FORMAT
};

enum class Rule { least, most, range, indexed };
struct LimitRow {
    GLenum pname;
    std::string_view element;
    Rule rule;
};
constexpr LimitRow limitRows[] = {
#define LIMIT(pname, element, rule) {pname, #element, Rule::rule},
#include "announcement/limits.def"
#undef LIMIT
};

size_t countOf(const LimitRow &row) {
    if (row.rule == Rule::indexed) return 3;
    return row.rule == Rule::range || row.pname == GL_MAX_VIEWPORT_DIMS ? 2 : 1;
}

bool isCarried(const HostFeatures &host, GLint esMajor, std::string_view name) {
    const auto known = std::ranges::find(esExtensions, name, &EsExtension::name);
    const bool isKnown = known != std::end(esExtensions);
    if (isKnown && !known->isForAll && !servesDesktopClients()) return false;
    const auto row = std::ranges::find(carriedExtensions, name, &Carried::name);
    if (row != std::end(carriedExtensions)) {
        return esMajor >= row->esMajor && host.carries(row->version, row->hostExtensions);
    }
    return isKnown && host.hasExtension(name);
}

std::vector<std::string> carriedOf(const HostFeatures &host, GLint esMajor) {
    std::vector<std::string> names;
    const auto add = [&](std::string_view name) {
        if (isCarried(host, esMajor, name)) names.emplace_back(name);
    };
    std::ranges::for_each(esExtensions, add, &EsExtension::name);
    std::ranges::for_each(carriedExtensions, add, &Carried::name);
    return names;
}

bool holdsAll(const std::vector<std::string> &names, std::string_view parts) {
    while (!parts.empty()) {
        const size_t end = std::min(parts.find(' '), parts.size());
        if (std::ranges::find(names, parts.substr(0, end)) == names.end()) return false;
        parts.remove_prefix(std::min(end + 1, parts.size()));
    }
    return true;
}

// All of them in alphabetical order, or the device's in its order.
std::vector<std::string> extensionsOf(const HostFeatures &host, const std::optional<EsBlock> &device, GLint major,
                                      GLint minor) {
    std::vector<std::string> names = carriedOf(host, major);
    const bool hasBundles = major * 10 + minor >= 31;
    for (const Bundle &bundle : bundles)
        if (hasBundles && holdsAll(names, bundle.parts)) names.emplace_back(bundle.name);
    std::ranges::sort(names);
    names.erase(std::unique(names.begin(), names.end()), names.end());
    if (!device || !device->listsExtensions()) return names;
    std::vector<std::string> both;
    std::ranges::copy_if(device->extensionNames, std::back_inserter(both),
                         [&](const std::string &name) { return std::ranges::binary_search(names, name); });
    return both;
}

std::string joined(const std::vector<std::string> &names) {
    std::string text;
    for (const std::string &name : names)
        text += (text.empty() ? "" : " ") + name;
    return text;
}

std::string hostText(GLenum name) {
    const GLubyte *const text = hostGl().getString(name);
    return text ? reinterpret_cast<const char *>(text) : "";
}

std::string number(GLint major, GLint minor) {
    return std::to_string(major) + '.' + std::to_string(minor);
}

std::vector<double> formatsOf(std::vector<double> host, const std::optional<EsBlock> &device) {
    if (!device) return host;
    const auto found = device->limits.find("compressed_texture_format");
    if (device->isDesktop && found == device->limits.end()) return host;
    std::erase_if(host, [&](double format) {
        return found == device->limits.end() || std::ranges::find(found->second, format) == found->second.end();
    });
    return host;
}

// Doubles hold every integer up to here.
constexpr double exactIntegers = 1LL << std::numeric_limits<double>::digits;

std::vector<double> hostNumbers(GLenum pname, size_t count) {
    if (count == 1) {
        GLint64 value = 0;
        hostGl().getInteger64v(pname, &value);
        return {static_cast<double>(value)};
    }
    if (count == 3) {
        std::vector<double> numbers;
        for (GLuint index = 0; index < count; ++index) {
            GLint value = 0;
            hostGl().getIntegeri_v(pname, index, &value);
            numbers.push_back(value);
        }
        return numbers;
    }
    GLfloat values[2] = {};
    hostGl().getFloatv(pname, values);
    return {values[0], values[1]};
}

std::vector<double> meet(Rule rule, std::vector<double> host, std::span<const double> device) {
    for (size_t index = 0; index < host.size(); ++index) {
        const bool takesGreater = rule == Rule::most || (rule == Rule::range && index == 0);
        host[index] = takesGreater ? std::max(host[index], device[index]) : std::min(host[index], device[index]);
    }
    return host;
}

} // namespace

std::shared_ptr<const Announcement> Announcement::of(const std::shared_ptr<const HostFeatures> &host,
                                                     const char *profileText, GLint major, GLint minor) {
    using Key = std::tuple<std::shared_ptr<const HostFeatures>, std::string, GLint, GLint>;
    const Key key(host, profileText ? profileText : "", major, minor);
    return KnownValues<Key, Announcement>::find(
        key, [&] { return std::make_shared<const Announcement>(*host, std::get<1>(key), major, minor); });
}

Announcement::Announcement(const HostFeatures &host, const std::string &profileText, GLint major, GLint minor) {
    const std::optional<EsBlock> device = readEsBlock(profileText, major, minor);
    version = "OpenGL ES " + number(major, minor) + " Zelvane (" + hostText(GL_VERSION) + ')';
    // The version of the shading language is 1.00 for ES 2, and that of the context for ES 3.
    shadingLanguageVersion = "OpenGL ES GLSL ES " + (major < 3 ? "1.00" : number(major, minor) + '0');
    vendor = device && !device->vendor.empty() ? device->vendor : hostText(GL_VENDOR);
    renderer = device && !device->renderer.empty() ? device->renderer : "Zelvane (" + hostText(GL_RENDERER) + ')';
    extensionNames = extensionsOf(host, device, major, minor);
    extensions = joined(extensionNames);
    compressedFormats = formatsOf(carriedFormats(host), device);
    if (device) m_limits = limitsOf(*device);
}

std::vector<double> Announcement::carriedFormats(const HostFeatures &host) const {
    std::vector<double> formats;
    if (host.carries(43, "GL_ARB_ES3_compatibility")) {
        for (GLint format = GL_COMPRESSED_R11_EAC; format <= GL_COMPRESSED_SRGB8_ALPHA8_ETC2_EAC; ++format)
            formats.push_back(format);
    }
    for (const CompressedFormat &row : compressedFormatRows)
        if (hasOneOf(row.extensions)) formats.push_back(row.format);
    return formats;
}

std::vector<Announcement::Limit> Announcement::limitsOf(const EsBlock &device) {
    std::vector<Limit> limits;
    for (const LimitRow &row : limitRows) {
        const auto found = device.limits.find(row.element);
        const size_t count = countOf(row);
        if (found == device.limits.end() || found->second.size() < count) continue;
        std::vector<double> host = hostNumbers(row.pname, count);
        // The device's version may be higher than the context's.
        if (hostGl().getError() != GL_NO_ERROR) continue;
        std::vector<double> met = meet(row.rule, host, found->second);
        // A double does not hold it exactly: the host answers itself.
        if (met == host && met.front() > exactIntegers) continue;
        limits.push_back({row.pname, std::move(met)});
    }
    std::ranges::sort(limits, {}, &Limit::pname);
    return limits;
}

const std::vector<double> *Announcement::limit(GLenum pname) const {
    const auto row = std::ranges::lower_bound(m_limits, pname, {}, &Limit::pname);
    return row == m_limits.end() || row->pname != pname ? nullptr : &row->numbers;
}

GLint Announcement::most(GLenum pname) const {
    const std::vector<double> *const numbers = limit(pname);
    return numbers ? static_cast<GLint>(numbers->front()) : std::numeric_limits<GLint>::max();
}

bool Announcement::hasOneOf(std::string_view names) const {
    return std::ranges::any_of(extensionNames, [&](const std::string &name) {
        const size_t start = names.find(name);
        const size_t end = start + name.size();
        return start != std::string_view::npos && (end == names.size() || names[end] == ' ');
    });
}
