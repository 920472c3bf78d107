// Queries of an application about its context.
#include "announcement/queries.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "desktop_names.h"
#include "fixed_function/fixed_point.h"
#include "fixed_function/parameters.h"

#include <bit>

namespace {

using Numbers = std::vector<double>;

// The bits of each number of the host's matrix, for GL_OES_matrix_get.
Numbers matrixBits(GLenum matrix) {
    GLfloat floats[16] = {};
    hostGl().getFloatv(matrix, floats);
    Numbers numbers;
    for (const GLfloat number : floats)
        numbers.push_back(std::bit_cast<GLint>(number));
    return numbers;
}

// The result that differs from the host's; empty if the host's is correct.
Numbers ownAnswer(GLenum pname) {
    const EsContext *const context = EsContext::current();
    if (!context) return {};
    if (const auto *const limit = context->announced.limits.find(pname)) return *limit;
    if (const auto state = ownArrayState(*context, pname)) return {static_cast<double>(*state)};
    const ArrayObject &arrays = context->vertices.arrays.bound();
    switch (pname) {
    case GL_POINT_SIZE_ARRAY_OES:
        return {arrays.pointSizes.isOn ? 1.0 : 0.0};
    case GL_MATRIX_INDEX_ARRAY_OES:
        return {arrays.matrixIndices.isOn ? 1.0 : 0.0};
    case GL_WEIGHT_ARRAY_OES:
        return {arrays.weights.isOn ? 1.0 : 0.0};
    case GL_MATRIX_PALETTE_OES:
        return {context->palette.isOn ? 1.0 : 0.0};
    case GL_MAX_PALETTE_MATRICES_OES:
        return {double{MatrixPalette::matrixCount}};
    case GL_MAX_VERTEX_UNITS_OES:
        return {double{MatrixPalette::unitCount}};
    case GL_CURRENT_PALETTE_MATRIX_OES:
        return {static_cast<double>(context->palette.current)};
    case GL_MATRIX_MODE:
        return context->palette.isMode ? Numbers{GL_MATRIX_PALETTE_OES} : Numbers{};
    case GL_TEXTURE_BINDING_2D:
    case GL_TEXTURE_BINDING_CUBE_MAP_OES: {
        const bool isCube = pname == GL_TEXTURE_BINDING_CUBE_MAP_OES;
        const GLuint bound = boundHostTexture(isCube ? GL_TEXTURE_CUBE_MAP_OES : GL_TEXTURE_2D);
        return {static_cast<double>(context->shared->standIns.nameOf(bound))};
    }
    case GL_TEXTURE_GEN_STR_OES:
        return {hostGl().isEnabled(desktop::textureGenS) ? 1.0 : 0.0};
    case GL_MODELVIEW_MATRIX_FLOAT_AS_INT_BITS_OES:
        return matrixBits(GL_MODELVIEW_MATRIX);
    case GL_PROJECTION_MATRIX_FLOAT_AS_INT_BITS_OES:
        return matrixBits(GL_PROJECTION_MATRIX);
    case GL_TEXTURE_MATRIX_FLOAT_AS_INT_BITS_OES:
        return matrixBits(GL_TEXTURE_MATRIX);
    default:
        return {};
    }
}

// askHost: called if the result is the host's.
template <typename Number, typename AskHost, typename Convert>
void get(GLenum pname, Number *data, AskHost askHost, Convert convert) {
    if (!data) return;
    EsContext *const context = EsContext::current();
    if (!context) return askHost();
    reportingMemory(*context, [&] {
        const Numbers answer = ownAnswer(pname);
        // An empty list of formats may be the device's own.
        if (answer.empty() && !context->announced.limits.find(pname)) return askHost();
        std::ranges::transform(answer, data, convert);
    });
}

GLfixed inFixedPoint(const State &state, double number) {
    return state.kind == Kind::Enumerant ? toInteger(number) : toFixed(number);
}

void getHostFixed(const State &state, GLfixed *params) {
    GLfloat floats[16] = {};
    floats[0] = NAN;
    hostGl().getFloatv(state.name, floats);
    if (std::isnan(floats[0])) return;
    std::transform(floats, floats + state.count, params, [&](GLfloat number) { return inFixedPoint(state, number); });
}

const GLubyte *asBytes(const std::string &text) {
    return reinterpret_cast<const GLubyte *>(text.c_str());
}

} // namespace

namespace overrides {

const GLubyte *GL_APIENTRY getString(GLenum name) {
    EsContext *const context = EsContext::current();
    if (!context) return hostGl().getString(name);
    switch (name) {
    case GL_VERSION:
        return asBytes(context->announced.version);
    case GL_VENDOR:
        return asBytes(context->announced.vendor);
    case GL_RENDERER:
        return asBytes(context->announced.renderer);
    case GL_EXTENSIONS:
        return asBytes(context->announced.extensions);
    default:
        context->raise(GL_INVALID_ENUM);
        return nullptr;
    }
}

GLenum GL_APIENTRY getError() {
    EsContext *const context = EsContext::current();
    const GLenum own = context ? context->takeError() : GL_NO_ERROR;
    if (own != GL_NO_ERROR) return own;
    const GLenum host = hostGl().getError();
    // Errors that ES 1 lacks, such as that of a lost context.
    const bool isForeign = host > GL_INVALID_FRAMEBUFFER_OPERATION_OES;
    return context && isForeign ? GL_INVALID_OPERATION : host;
}

void GL_APIENTRY getBooleanv(GLenum pname, GLboolean *data) {
    get(
        pname, data, [&] { hostGl().getBooleanv(pname, data); },
        [](double number) -> GLboolean { return number != 0; });
}

void GL_APIENTRY getFloatv(GLenum pname, GLfloat *data) {
    get(
        pname, data, [&] { hostGl().getFloatv(pname, data); },
        [](double number) { return static_cast<GLfloat>(number); });
}

void GL_APIENTRY getIntegerv(GLenum pname, GLint *data) {
    get(
        pname, data, [&] { hostGl().getIntegerv(pname, data); }, toInteger);
}

void GL_APIENTRY getFixedv(GLenum pname, GLfixed *params) {
    const State *state = findState(pname);
    // The only list whose length depends on the host.
    constexpr State formats = {GL_COMPRESSED_TEXTURE_FORMATS, 0, Kind::Enumerant};
    if (pname == formats.name) state = &formats;
    if (!state) return raise(GL_INVALID_ENUM);
    get(
        pname, params, [&] { getHostFixed(*state, params); },
        [&](double number) { return inFixedPoint(*state, number); });
}

} // namespace overrides
