// ES 1 accepts fewer parameter names than the host.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"
#include "fixed_function/parameters.h"

namespace overrides {

void GL_APIENTRY fogf(GLenum pname, GLfloat param) {
    if (checkScalar(Family::Fog, pname)) hostGl().fogf(pname, param);
}

void GL_APIENTRY fogfv(GLenum pname, const GLfloat *params) {
    if (checkVector(Family::Fog, pname)) hostGl().fogfv(pname, params);
}

void GL_APIENTRY lightf(GLenum light, GLenum pname, GLfloat param) {
    if (checkScalar(Family::Light, pname)) hostGl().lightf(light, pname, param);
}

void GL_APIENTRY lightfv(GLenum light, GLenum pname, const GLfloat *params) {
    if (checkVector(Family::Light, pname)) hostGl().lightfv(light, pname, params);
}

void GL_APIENTRY lightModelf(GLenum pname, GLfloat param) {
    if (checkScalar(Family::LightModel, pname)) hostGl().lightModelf(pname, param);
}

void GL_APIENTRY lightModelfv(GLenum pname, const GLfloat *params) {
    if (checkVector(Family::LightModel, pname)) hostGl().lightModelfv(pname, params);
}

void GL_APIENTRY pointParameterf(GLenum pname, GLfloat param) {
    if (checkScalar(Family::PointParameter, pname)) hostGl().pointParameterf(pname, param);
}

void GL_APIENTRY pointParameterfv(GLenum pname, const GLfloat *params) {
    if (checkVector(Family::PointParameter, pname)) hostGl().pointParameterfv(pname, params);
}

void GL_APIENTRY texEnvf(GLenum target, GLenum pname, GLfloat param) {
    if (checkScalar(Family::TexEnv, pname)) hostGl().texEnvf(target, pname, param);
}

void GL_APIENTRY texEnvfv(GLenum target, GLenum pname, const GLfloat *params) {
    if (checkVector(Family::TexEnv, pname)) hostGl().texEnvfv(target, pname, params);
}

void GL_APIENTRY texEnvi(GLenum target, GLenum pname, GLint param) {
    if (checkScalar(Family::TexEnv, pname)) hostGl().texEnvi(target, pname, param);
}

void GL_APIENTRY texEnviv(GLenum target, GLenum pname, const GLint *params) {
    if (checkVector(Family::TexEnv, pname)) hostGl().texEnviv(target, pname, params);
}

void GL_APIENTRY texParameterf(GLenum target, GLenum pname, GLfloat param) {
    if (checkScalar(Family::TexParameter, pname)) hostGl().texParameterf(target, pname, param);
}

void GL_APIENTRY texParameteri(GLenum target, GLenum pname, GLint param) {
    if (checkScalar(Family::TexParameter, pname)) hostGl().texParameteri(target, pname, param);
}

// ES 1 accepts only GL_FRONT_AND_BACK.
void GL_APIENTRY materialf(GLenum face, GLenum pname, GLfloat param) {
    if (face != GL_FRONT_AND_BACK) return raise(GL_INVALID_ENUM);
    if (checkScalar(Family::Material, pname)) hostGl().materialf(face, pname, param);
}

void GL_APIENTRY materialfv(GLenum face, GLenum pname, const GLfloat *params) {
    if (face != GL_FRONT_AND_BACK) return raise(GL_INVALID_ENUM);
    if (checkVector(Family::Material, pname)) hostGl().materialfv(face, pname, params);
}

} // namespace overrides
