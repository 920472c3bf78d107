// Queries of an application about its context. They return the state of the ES context, not of the host's.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "framebuffers/surface_buffers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace {

constexpr GLenum fragmentShaderDiscardsSamples = 0x8A52; // of EXT_shader_framebuffer_fetch
constexpr GLenum gpuDisjoint = 0x8FBB;                   // of EXT_disjoint_timer_query
constexpr GLenum contextRobustAccess = 0x90F3;           // of KHR_robustness
constexpr GLuint noErrorFlag = 8;                        // of KHR_no_error, in GL_CONTEXT_FLAGS

// Where the result of a query comes from.
enum class Answer : uint64_t {
    Host,
    OneNumber,
    ObjectName,
    List, // the device profile's values, or the host if there are none
};

// Two bits per name, so that a query of the host costs one lookup more.
constexpr auto answers = [] {
    std::array<uint64_t, 0x10000 / 32> bits = {};
    const auto set = [&](GLenum pname, Answer answer) { bits[pname / 32] |= uint64_t(answer) << pname % 32 * 2; };
    for (const auto pname : {GL_MAJOR_VERSION, GL_MINOR_VERSION, GL_NUM_EXTENSIONS, GL_NUM_COMPRESSED_TEXTURE_FORMATS,
                             GL_GENERATE_MIPMAP_HINT, GL_VERTEX_ARRAY_BINDING, GL_READ_BUFFER})
        set(static_cast<GLenum>(pname), Answer::OneNumber);
    set(fragmentShaderDiscardsSamples, Answer::OneNumber);
    set(gpuDisjoint, Answer::OneNumber);
    set(contextRobustAccess, Answer::OneNumber);
    set(GL_CONTEXT_FLAGS, Answer::OneNumber);
    set(GL_RESET_NOTIFICATION_STRATEGY, Answer::OneNumber);
    set(GL_FRAMEBUFFER_SRGB_EXT, Answer::OneNumber);
    for (GLenum pname = GL_DRAW_BUFFER0; pname <= GL_DRAW_BUFFER15; ++pname)
        set(pname, Answer::OneNumber);
#define NAME_QUERY(pname, hostName, table) set(pname, Answer::ObjectName);
#include "announcement/name_queries.def"
#undef NAME_QUERY
    set(GL_COMPRESSED_TEXTURE_FORMATS, Answer::List);
#define LIMIT(pname, element, rule)                                                                                    \
    if (std::string_view(#rule) != "indexed") set(pname, Answer::List);
#include "announcement/limits.def"
#undef LIMIT
    return bits;
}();

Answer answerTo(GLenum pname) {
    return pname < 0x10000 ? Answer(answers[pname / 32] >> pname % 32 * 2 & 3) : Answer::Host;
}

GLuint askHost(GLenum pname) {
    GLint value = 0;
    hostGl().getIntegerv(pname, &value);
    return static_cast<GLuint>(value);
}

double oneNumber(const EsContext &context, GLenum pname) {
    switch (pname) {
    case GL_MAJOR_VERSION:
        return context.major;
    case GL_MINOR_VERSION:
        return context.minor;
    case GL_NUM_EXTENSIONS:
        return static_cast<double>(context.announced.extensionNames.size());
    case GL_NUM_COMPRESSED_TEXTURE_FORMATS:
        return static_cast<double>(context.announced.compressedFormats.size());
    case GL_GENERATE_MIPMAP_HINT:
        return context.textures.mipmapHint;
    case GL_VERTEX_ARRAY_BINDING: {
        const GLuint bound = askHost(pname);
        return bound == context.vertices.defaultObject ? 0 : bound;
    }
    case fragmentShaderDiscardsSamples:
        return 1;
    // The host's timer is never disjoint.
    case gpuDisjoint:
        return 0;
    // The host's context may differ from the requested robustness.
    case contextRobustAccess:
        return context.robustAccess;
    case GL_RESET_NOTIFICATION_STRATEGY:
        return context.resetStrategy;
    // The host's context checks errors all the same.
    case GL_CONTEXT_FLAGS:
        return askHost(pname) | (context.noError ? noErrorFlag : 0);
    case GL_FRAMEBUFFER_SRGB_EXT:
        return context.framebuffers.mayWriteSrgb();
    default:
        return esBuffer(askHost(pname));
    }
}

GLuint objectName(const EsContext &context, GLenum pname) {
    switch (pname) {
#define NAME_QUERY(pname, hostName, table)                                                                             \
    case pname:                                                                                                        \
        return context.table.nameOf(askHost(hostName));
#include "announcement/name_queries.def"
#undef NAME_QUERY
    default:
        return 0;
    }
}

// Null if the host's result is correct.
const std::vector<double> *list(const Announcement &announced, GLenum pname) {
    return pname == GL_COMPRESSED_TEXTURE_FORMATS ? &announced.compressedFormats : announced.limit(pname);
}

template <typename Value>
Value converted(double number) {
    if constexpr (std::is_same_v<Value, GLboolean>) return number != 0;
    if constexpr (std::is_same_v<Value, GLfloat>) return static_cast<GLfloat>(number);
    // Integer queries round, and clamp to the greatest value.
    constexpr auto greatest = std::numeric_limits<Value>::max();
    if (number >= static_cast<double>(greatest)) return greatest;
    return static_cast<Value>(std::llround(number));
}

template <typename Value>
void get(GLenum pname, Value *data, void(GL_APIENTRY *host)(GLenum, Value *)) {
    const Answer answer = answerTo(pname);
    const EsContext *const context = EsContext::current();
    if (answer == Answer::Host || !context || !data) return host(pname, data);
    if (answer == Answer::OneNumber) {
        *data = converted<Value>(oneNumber(*context, pname));
    } else if (answer == Answer::ObjectName) {
        const GLuint name = objectName(*context, pname);
        *data = static_cast<Value>(std::is_same_v<Value, GLboolean> ? name != 0 : name);
    } else if (const std::vector<double> *const numbers = list(context->announced, pname)) {
        std::ranges::transform(*numbers, data, converted<Value>);
    } else {
        host(pname, data);
    }
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
    // Core contexts do not have this string.
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
    // An index past the host's last one, so the host raises the error.
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
    case GL_MAX_COMPUTE_WORK_GROUP_COUNT:
    case GL_MAX_COMPUTE_WORK_GROUP_SIZE:
        if (const auto *const limit = context->announced.limit(target); limit && index < limit->size())
            *data = static_cast<GLint>((*limit)[index]);
        break;
    case GL_IMAGE_BINDING_NAME:
        *data = static_cast<GLint>(context->shared->textures.names.nameOf(static_cast<GLuint>(*data)));
        break;
    default:
        break;
    }
}

} // namespace overrides
