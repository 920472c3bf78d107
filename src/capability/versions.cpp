#include "capability/versions.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace capability {

namespace {

struct GlVersionRow {
    GlVersion value;
    const char *text;
};

constexpr auto glVersions = std::to_array<GlVersionRow>({
#define GL_VERSION_ROW(value, text) {value, text},
#include "capability/data/gl_versions.def"
#undef GL_VERSION_ROW
});

struct GlslVersionRow {
    GlslVersion value;
    const char *text;
    const char *shortName;
    const char *longName;
};

constexpr auto glslVersions = std::to_array<GlslVersionRow>({
#define GLSL_VERSION_ROW(value, text, shortName, longName) {value, text, shortName, longName},
#include "capability/data/glsl_versions.def"
#undef GLSL_VERSION_ROW
});

struct EsVersionRow {
    EsVersion value;
    const char *text;
};

constexpr auto esVersions = std::to_array<EsVersionRow>({
#define ES_VERSION_ROW(value, text) {value, text},
#include "capability/data/es_versions.def"
#undef ES_VERSION_ROW
});

template <typename Rows>
auto findValue(const Rows &rows, int32_t value) {
    return std::ranges::find(rows, value, &Rows::value_type::value);
}

// The value of the first row whose text is a prefix of the given text.
template <typename Rows>
int32_t parseVersion(const Rows &rows, const char *text, int32_t none, int32_t unknown) {
    if (!text) return none;
    const auto row =
        std::ranges::find_if(rows, [&](const auto &row) { return !strncmp(text, row.text, strlen(row.text)); });
    return row == rows.end() ? unknown : row->value;
}

} // namespace

GlVersion parseGlVersion(const char *text) {
    return parseVersion(glVersions, text, noGlVersion, unknownGlVersion);
}

const char *glVersionName(GlVersion value) {
    const auto row = findValue(glVersions, value);
    return row == glVersions.end() ? "unknown" : row->text;
}

GlslVersion parseGlslVersion(const char *text) {
    return parseVersion(glslVersions, text, noGlslVersion, unknownGlslVersion);
}

const char *glslVersionName(GlslVersion value, bool isShort) {
    const auto row = findValue(glslVersions, value);
    if (row == glslVersions.end()) return "<Failed to query GLSL version>";
    return isShort ? row->shortName : row->longName;
}

const char *esVersionName(EsVersion value) {
    const auto row = findValue(esVersions, value);
    return row == esVersions.end() ? "<Failed to query OpenGL ES version>" : row->text;
}

EsVersion esVersionFromContext(int32_t major, int32_t minor) {
    if (major == 1 || major == 2) return major;
    return major == 3 && minor >= 0 && minor <= 2 ? es3_0 + minor : 0;
}

} // namespace capability
