// glQueryMatrix: the current matrix as fixed-point mantissas and exponents.
#include "common/per_back_end/overrides.h"
#include "fixed_function/fixed_point.h"
#include "fixed_function/matrix_palette.h"

namespace overrides {

// A bit of the result is set for each number that is infinite or not a number.
GLbitfield GL_APIENTRY queryMatrixxOES(GLfixed *mantissa, GLint *exponent) {
    if (!mantissa || !exponent) return 0xFFFF;
    const Matrix matrix = currentMatrix();
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
