// What an application asks about its context. An ES context tells what it is, not what carries it.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/surface_buffers.h"

#include <cmath>
#include <limits>
#include <optional>
#include <type_traits>
#include <utility>

namespace {

using Numbers = std::vector<double>;

GLint askHost(GLenum pname) {
    GLint value = 0;
    hostGl().getIntegerv(pname, &value);
    return value;
}

bool isBufferQuery(GLenum pname) {
    return pname == GL_READ_BUFFER || (pname >= GL_DRAW_BUFFER0 && pname <= GL_DRAW_BUFFER15);
}

std::optional<GLuint> objectName(const EsContext &context, GLenum pname) {
    const auto name = [](GLenum hostName, const NameTable &table) {
        return table.nameOf(static_cast<GLuint>(askHost(hostName)));
    };
    switch (pname) {
#define NAME_QUERY(pname, hostName, table)                                                                             \
    case pname:                                                                                                        \
        return name(hostName, context.table);
#include "announcement/name_queries.def"
#undef NAME_QUERY
    case GL_VERTEX_ARRAY_BINDING: {
        const auto bound = static_cast<GLuint>(askHost(pname));
        return bound == context.vertices.defaultObject ? 0 : bound;
    }
    default:
        return std::nullopt;
    }
}

// Nothing where the host's answer is right.
std::optional<Numbers> ownAnswer(const EsContext &context, GLenum pname) {
    constexpr GLenum fragmentShaderDiscardsSamples = 0x8A52; // of EXT_shader_framebuffer_fetch
    const Announcement &announced = context.announced;
    switch (pname) {
    case GL_MAJOR_VERSION:
        return Numbers{double(context.major)};
    case GL_MINOR_VERSION:
        return Numbers{double(context.minor)};
    case GL_NUM_EXTENSIONS:
        return Numbers{double(announced.extensionNames.size())};
    case GL_NUM_COMPRESSED_TEXTURE_FORMATS:
        return Numbers{double(announced.compressedFormats.size())};
    case GL_COMPRESSED_TEXTURE_FORMATS:
        return announced.compressedFormats;
    case GL_GENERATE_MIPMAP_HINT:
        return Numbers{double(context.textures.mipmapHint)};
    case fragmentShaderDiscardsSamples:
        return Numbers{1};
    default:
        break;
    }
    if (isBufferQuery(pname)) return Numbers{double(esBuffer(static_cast<GLenum>(askHost(pname))))};
    if (const auto name = objectName(context, pname)) return Numbers{double(*name)};
    const auto limit = announced.limits.find(pname);
    if (limit != announced.limits.end()) return limit->second;
    return std::nullopt;
}

template <typename Value>
Value converted(double number) {
    if constexpr (std::is_same_v<Value, GLboolean>) return number != 0;
    if constexpr (std::is_same_v<Value, GLfloat>) return static_cast<GLfloat>(number);
    // An integer form rounds and takes the nearest that it has.
    constexpr auto greatest = std::numeric_limits<Value>::max();
    if (number >= static_cast<double>(greatest)) return greatest;
    return static_cast<Value>(std::llround(number));
}

template <typename Value>
void get(GLenum pname, Value *data, void(GL_APIENTRY *host)(GLenum, Value *)) {
    const EsContext *const context = data ? EsContext::current() : nullptr;
    const auto answer = context ? ownAnswer(*context, pname) : std::nullopt;
    if (!answer) return host(pname, data);
    for (const double number : *answer)
        *data++ = converted<Value>(number);
}

const GLubyte *asBytes(const std::string &text) {
    return reinterpret_cast<const GLubyte *>(text.c_str());
}

} // namespace

namespace overrides {

GLenum GL_APIENTRY getError() {
    EsContext *const context = EsContext::current();
    const GLenum own = context ? context->takeError() : GL_NO_ERROR;
    return own != GL_NO_ERROR ? own : hostGl().getError();
}

const GLubyte *GL_APIENTRY getString(GLenum name) {
    const EsContext *const context = EsContext::current();
    if (!context) return hostGl().getString(name);
    const Announcement &announced = context->announced;
    switch (name) {
    case GL_VERSION:
        return asBytes(announced.version);
    case GL_SHADING_LANGUAGE_VERSION:
        return asBytes(announced.shadingLanguageVersion);
    case GL_VENDOR:
        return asBytes(announced.vendor);
    case GL_RENDERER:
        return asBytes(announced.renderer);
    // A core context has no such string at all.
    case GL_EXTENSIONS:
        return asBytes(announced.extensions);
    default:
        return hostGl().getString(name);
    }
}

const GLubyte *GL_APIENTRY getStringi(GLenum name, GLuint index) {
    const EsContext *const context = EsContext::current();
    if (!context || name != GL_EXTENSIONS) return hostGl().getStringi(name, index);
    const auto &names = context->announced.extensionNames;
    if (index < names.size()) return asBytes(names[index]);
    // Past the host's own end, so that the host raises the error.
    return hostGl().getStringi(name, ~0u);
}

void GL_APIENTRY getBooleanv(GLenum pname, GLboolean *data) {
    get(pname, data, hostGl().getBooleanv);
}

void GL_APIENTRY getFloatv(GLenum pname, GLfloat *data) {
    get(pname, data, hostGl().getFloatv);
}

void GL_APIENTRY getInteger64v(GLenum pname, GLint64 *data) {
    get(pname, data, hostGl().getInteger64v);
}

void GL_APIENTRY getIntegerv(GLenum pname, GLint *data) {
    get(pname, data, hostGl().getIntegerv);
}

void GL_APIENTRY getIntegeri_v(GLenum target, GLuint index, GLint *data) {
    hostGl().getIntegeri_v(target, index, data);
    const EsContext *const context = EsContext::current();
    if (!context || !data) return;
    switch (target) {
    case GL_ATOMIC_COUNTER_BUFFER_BINDING:
    case GL_SHADER_STORAGE_BUFFER_BINDING:
    case GL_TRANSFORM_FEEDBACK_BUFFER_BINDING:
    case GL_UNIFORM_BUFFER_BINDING:
    case GL_VERTEX_BINDING_BUFFER:
        *data = static_cast<GLint>(context->shared->buffers.names.nameOf(static_cast<GLuint>(*data)));
        break;
    case GL_IMAGE_BINDING_NAME:
        *data = static_cast<GLint>(context->shared->textures.names.nameOf(static_cast<GLuint>(*data)));
        break;
    default:
        break;
    }
}

} // namespace overrides
