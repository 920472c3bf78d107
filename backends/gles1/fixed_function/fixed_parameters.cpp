// Fixed-point functions with a parameter name.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "fixed_function/fixed_point.h"
#include "fixed_function/parameters.h"

#include <array>

namespace {

using Floats = std::array<GLfloat, 4>;

GLfloat toFloat(const Parameter &parameter, GLfixed number) {
    return parameter.kind == Kind::Value ? fromFixed(number) : static_cast<GLfloat>(number);
}

template <typename Set>
void setScalar(Family family, GLenum name, GLfixed number, Set set) {
    if (const Parameter *const parameter = checkScalar(family, name)) set(toFloat(*parameter, number));
}

template <typename Set>
void setVector(Family family, GLenum name, const GLfixed *numbers, Set set) {
    const Parameter *const parameter = numbers ? checkVector(family, name) : nullptr;
    if (!parameter) return;
    Floats floats = {};
    std::transform(numbers, numbers + parameter->count, floats.begin(),
                   [&](GLfixed number) { return toFloat(*parameter, number); });
    set(floats.data());
}

// Values that the host does not write, after an error, are not written for the application.
template <typename Get>
void getVector(Family family, GLenum name, GLfixed *numbers, Get get) {
    const Parameter *const parameter = numbers ? checkVector(family, name) : nullptr;
    if (!parameter) return;
    Floats floats;
    floats.fill(NAN);
    get(floats.data());
    if (std::isnan(floats[0])) return;
    std::transform(floats.begin(), floats.begin() + parameter->count, numbers, [&](GLfloat number) {
        return parameter->kind == Kind::Value ? toFixed(number) : toInteger(number);
    });
}

} // namespace

namespace overrides {

void GL_APIENTRY fogx(GLenum pname, GLfixed param) {
    setScalar(Family::Fog, pname, param, [&](GLfloat value) { hostGl().fogf(pname, value); });
}

void GL_APIENTRY fogxv(GLenum pname, const GLfixed *param) {
    setVector(Family::Fog, pname, param, [&](const GLfloat *values) { hostGl().fogfv(pname, values); });
}

void GL_APIENTRY lightx(GLenum light, GLenum pname, GLfixed param) {
    setScalar(Family::Light, pname, param, [&](GLfloat value) { hostGl().lightf(light, pname, value); });
}

void GL_APIENTRY lightxv(GLenum light, GLenum pname, const GLfixed *params) {
    setVector(Family::Light, pname, params, [&](const GLfloat *values) { hostGl().lightfv(light, pname, values); });
}

void GL_APIENTRY getLightxv(GLenum light, GLenum pname, GLfixed *params) {
    getVector(Family::Light, pname, params, [&](GLfloat *values) { hostGl().getLightfv(light, pname, values); });
}

void GL_APIENTRY lightModelx(GLenum pname, GLfixed param) {
    setScalar(Family::LightModel, pname, param, [&](GLfloat value) { hostGl().lightModelf(pname, value); });
}

void GL_APIENTRY lightModelxv(GLenum pname, const GLfixed *param) {
    setVector(Family::LightModel, pname, param, [&](const GLfloat *values) { hostGl().lightModelfv(pname, values); });
}

void GL_APIENTRY materialx(GLenum face, GLenum pname, GLfixed param) {
    setScalar(Family::Material, pname, param, [&](GLfloat value) { overrides::materialf(face, pname, value); });
}

void GL_APIENTRY materialxv(GLenum face, GLenum pname, const GLfixed *param) {
    setVector(Family::Material, pname, param,
              [&](const GLfloat *values) { overrides::materialfv(face, pname, values); });
}

void GL_APIENTRY getMaterialxv(GLenum face, GLenum pname, GLfixed *params) {
    getVector(Family::Material, pname, params, [&](GLfloat *values) { hostGl().getMaterialfv(face, pname, values); });
}

void GL_APIENTRY pointParameterx(GLenum pname, GLfixed param) {
    setScalar(Family::PointParameter, pname, param, [&](GLfloat value) { hostGl().pointParameterf(pname, value); });
}

void GL_APIENTRY pointParameterxv(GLenum pname, const GLfixed *params) {
    setVector(Family::PointParameter, pname, params,
              [&](const GLfloat *values) { hostGl().pointParameterfv(pname, values); });
}

void GL_APIENTRY texEnvx(GLenum target, GLenum pname, GLfixed param) {
    setScalar(Family::TexEnv, pname, param, [&](GLfloat value) { hostGl().texEnvf(target, pname, value); });
}

void GL_APIENTRY texEnvxv(GLenum target, GLenum pname, const GLfixed *params) {
    setVector(Family::TexEnv, pname, params, [&](const GLfloat *values) { hostGl().texEnvfv(target, pname, values); });
}

void GL_APIENTRY getTexEnvxv(GLenum target, GLenum pname, GLfixed *params) {
    getVector(Family::TexEnv, pname, params, [&](GLfloat *values) { hostGl().getTexEnvfv(target, pname, values); });
}

void GL_APIENTRY texParameterx(GLenum target, GLenum pname, GLfixed param) {
    setScalar(Family::TexParameter, pname, param, [&](GLfloat value) { hostGl().texParameterf(target, pname, value); });
}

void GL_APIENTRY texParameterxv(GLenum target, GLenum pname, const GLfixed *params) {
    setVector(Family::TexParameter, pname, params,
              [&](const GLfloat *values) { overrides::texParameterfv(target, pname, values); });
}

void GL_APIENTRY getTexParameterxv(GLenum target, GLenum pname, GLfixed *params) {
    getVector(Family::TexParameter, pname, params,
              [&](GLfloat *values) { overrides::getTexParameterfv(target, pname, values); });
}

void GL_APIENTRY texGenxOES(GLenum coord, GLenum pname, GLfixed param) {
    setScalar(Family::TexGen, pname, param, [&](GLfloat value) { overrides::texGenfOES(coord, pname, value); });
}

void GL_APIENTRY texGenxvOES(GLenum coord, GLenum pname, const GLfixed *params) {
    setVector(Family::TexGen, pname, params,
              [&](const GLfloat *values) { overrides::texGenfvOES(coord, pname, values); });
}

void GL_APIENTRY getTexGenxvOES(GLenum coord, GLenum pname, GLfixed *params) {
    getVector(Family::TexGen, pname, params, [&](GLfloat *values) { overrides::getTexGenfvOES(coord, pname, values); });
}

} // namespace overrides
