// Fixed-point functions whose arguments are numbers only.
#include "fixed_function/fixed_point.h"

#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"

namespace overrides {

void GL_APIENTRY alphaFuncx(GLenum func, GLfixed ref) {
    hostGl().alphaFunc(func, fromFixed(ref));
}

void GL_APIENTRY clearColorx(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
    hostGl().clearColor(fromFixed(red), fromFixed(green), fromFixed(blue), fromFixed(alpha));
}

void GL_APIENTRY color4x(GLfixed red, GLfixed green, GLfixed blue, GLfixed alpha) {
    hostGl().color4f(fromFixed(red), fromFixed(green), fromFixed(blue), fromFixed(alpha));
}

void GL_APIENTRY lineWidthx(GLfixed width) {
    hostGl().lineWidth(fromFixed(width));
}

void GL_APIENTRY multiTexCoord4x(GLenum texture, GLfixed s, GLfixed t, GLfixed r, GLfixed q) {
    hostGl().multiTexCoord4f(texture, fromFixed(s), fromFixed(t), fromFixed(r), fromFixed(q));
}

void GL_APIENTRY normal3x(GLfixed nx, GLfixed ny, GLfixed nz) {
    hostGl().normal3f(fromFixed(nx), fromFixed(ny), fromFixed(nz));
}

void GL_APIENTRY pointSizex(GLfixed size) {
    hostGl().pointSize(fromFixed(size));
}

void GL_APIENTRY polygonOffsetx(GLfixed factor, GLfixed units) {
    hostGl().polygonOffset(fromFixed(factor), fromFixed(units));
}

void GL_APIENTRY sampleCoveragex(GLclampx value, GLboolean invert) {
    hostGl().sampleCoverage(fromFixed(value), invert);
}

} // namespace overrides
