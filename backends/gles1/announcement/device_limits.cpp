#include "announcement/device_limits.h"

#include "announcement/extensions.h"
#include "common/per_back_end/host_gl.h"

#include <algorithm>
#include <array>

namespace {

enum class Form { number, range, size };
struct Limit {
    GLenum name;
    const char *element;
    Form form;
};

constexpr Limit limits[] = {
#define LIMIT(name, element, form) {name, element, Form::form},
#include "announcement/limits.def"
#undef LIMIT
};

struct PixelFormat {
    GLenum format, type;
};

constexpr PixelFormat pixelFormats[] = {
#define PIXEL_FORMAT(format, type) {format, type},
#include "textures/pixel_formats.def"
#undef PIXEL_FORMAT
};

constexpr GLenum ownFormats[] = {
#define PALETTE_FORMAT(name, ...) name,
#include "textures/palette_formats.def"
#undef PALETTE_FORMAT
    GL_ETC1_RGB8_OES,
};
struct CompressedFormat {
    GLenum name;
    const char *extension;
};
constexpr CompressedFormat hostsFormats[] = {
    {GL_COMPRESSED_RGB_S3TC_DXT1_EXT, "GL_EXT_texture_compression_dxt1"},
    {GL_COMPRESSED_RGBA_S3TC_DXT1_EXT, "GL_EXT_texture_compression_dxt1"},
    {GL_COMPRESSED_RGBA_S3TC_DXT3, "GL_ANGLE_texture_compression_dxt3"},
    {GL_COMPRESSED_RGBA_S3TC_DXT5, "GL_ANGLE_texture_compression_dxt5"},
};

// The numbers of an element; null if the device does not define them all.
const std::vector<double> *told(const std::optional<EsBlock> &device, std::string_view element, size_t count) {
    if (!device) return nullptr;
    const auto found = device->limits.find(element);
    return found == device->limits.end() || found->second.size() < count ? nullptr : &found->second;
}

// A range that does not intersect the host's leaves the host's unchanged.
void cut(Form form, std::vector<double> &host, const std::vector<double> &device) {
    if (form != Form::range) {
        std::ranges::transform(host, device, host.begin(),
                               [](double own, double other) { return std::min(own, other); });
    } else if (device[0] <= host[1] && device[1] >= host[0]) {
        host = {std::max(host[0], device[0]), std::min(host[1], device[1])};
    }
}

} // namespace

Limits::Limits(const HostFeatures &host, const std::optional<EsBlock> &device) {
    cutLimits(device);
    takeCompressedFormats(host, device);
    takeReadFormat(device);
}

const std::vector<double> *Limits::find(GLenum pname) const {
    const auto found = m_values.find(pname);
    return found == m_values.end() ? nullptr : &found->second;
}

void Limits::cutLimits(const std::optional<EsBlock> &device) {
    for (const Limit &limit : limits) {
        const size_t count = limit.form == Form::number ? 1 : 2;
        const auto *const numbers = told(device, limit.element, count);
        if (!numbers) continue;
        std::array<GLfloat, 2> hosts = {};
        hostGl().getFloatv(limit.name, hosts.data());
        if (hostGl().getError() != GL_NO_ERROR) continue;
        std::vector<double> values(hosts.begin(), hosts.begin() + static_cast<ptrdiff_t>(count));
        cut(limit.form, values, *numbers);
        m_values[limit.name] = std::move(values);
    }
}

void Limits::takeCompressedFormats(const HostFeatures &host, const std::optional<EsBlock> &device) {
    std::vector<double> formats(std::begin(ownFormats), std::end(ownFormats));
    for (const CompressedFormat &format : hostsFormats)
        if (carriesExtension(host, format.extension)) formats.push_back(format.name);
    if (const auto *const wanted = told(device, "compressed_texture_format", 1)) {
        std::vector<double> both;
        for (const double format : *wanted)
            if (std::ranges::find(formats, format) != formats.end()) both.push_back(format);
        formats = std::move(both);
    }
    m_values[GL_NUM_COMPRESSED_TEXTURE_FORMATS] = {static_cast<double>(formats.size())};
    m_values[GL_COMPRESSED_TEXTURE_FORMATS] = std::move(formats);
}

// If the device defines the type only, the first format that is valid with it is used.
void Limits::takeReadFormat(const std::optional<EsBlock> &device) {
    const auto type = device ? device->limit("implementation_color_read_type") : std::nullopt;
    const auto format = device ? device->limit("implementation_color_read_format") : std::nullopt;
    const auto fits = [&](const PixelFormat &row) {
        return type && row.type == *type && (!format || row.format == *format);
    };
    const auto row = std::ranges::find_if(pixelFormats, fits);
    const PixelFormat chosen = row == std::end(pixelFormats) ? pixelFormats[0] : *row;
    m_values[GL_IMPLEMENTATION_COLOR_READ_FORMAT_OES] = {static_cast<double>(chosen.format)};
    m_values[GL_IMPLEMENTATION_COLOR_READ_TYPE_OES] = {static_cast<double>(chosen.type)};
}
