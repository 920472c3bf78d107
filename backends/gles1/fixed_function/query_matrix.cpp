// The current matrix as mantissas of fixed point and exponents.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "fixed_function/fixed_point.h"

namespace {

GLenum currentMatrix() {
    GLint mode = GL_MODELVIEW;
    hostGl().getIntegerv(GL_MATRIX_MODE, &mode);
    switch (mode) {
    case GL_PROJECTION:
        return GL_PROJECTION_MATRIX;
    case GL_TEXTURE:
        return GL_TEXTURE_MATRIX;
    default:
        return GL_MODELVIEW_MATRIX;
    }
}

} // namespace

namespace overrides {

// A bit of the result is set for each number that has no such form.
GLbitfield GL_APIENTRY queryMatrixxOES(GLfixed *mantissa, GLint *exponent) {
    if (!mantissa || !exponent) return 0xFFFF;
    GLfloat matrix[16] = {};
    hostGl().getFloatv(currentMatrix(), matrix);
    GLbitfield unknown = 0;
    for (unsigned index = 0; index < 16; ++index) {
        int power = 0;
        const double fraction = std::frexp(matrix[index], &power);
        if (!std::isfinite(fraction)) unknown |= 1u << index;
        mantissa[index] = std::isfinite(fraction) ? toFixed(fraction) : 0;
        exponent[index] = std::isfinite(fraction) ? power : 0;
    }
    return unknown;
}

} // namespace overrides
