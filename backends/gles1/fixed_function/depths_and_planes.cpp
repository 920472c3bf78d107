// Functions that desktop OpenGL has in double precision only: depths and clip planes.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "fixed_function/fixed_point.h"

#include <array>

namespace {

constexpr auto precise = preciseFromFixed;

template <typename Convert, typename Number>
void setClipPlane(GLenum plane, const Number *equation, Convert convert) {
    if (!equation) return;
    std::array<double, 4> numbers;
    std::transform(equation, equation + 4, numbers.begin(), convert);
    hostGl().clipPlane(plane, numbers.data());
}

// For an invalid plane the host generates an error and equation is not written.
template <typename Convert, typename Number>
void getClipPlane(GLenum plane, Number *equation, Convert convert) {
    std::array<double, 4> numbers;
    numbers.fill(NAN);
    hostGl().getClipPlane(plane, numbers.data());
    if (equation && !std::isnan(numbers[0])) std::ranges::transform(numbers, equation, convert);
}

} // namespace

namespace overrides {

void GL_APIENTRY clearDepthf(GLfloat d) {
    hostGl().clearDepth(d);
}

void GL_APIENTRY clearDepthx(GLfixed depth) {
    hostGl().clearDepth(precise(depth));
}

void GL_APIENTRY depthRangef(GLfloat n, GLfloat f) {
    hostGl().depthRange(n, f);
}

void GL_APIENTRY depthRangex(GLfixed n, GLfixed f) {
    hostGl().depthRange(precise(n), precise(f));
}

void GL_APIENTRY clipPlanef(GLenum p, const GLfloat *eqn) {
    setClipPlane(p, eqn, [](GLfloat number) { return static_cast<double>(number); });
}

void GL_APIENTRY clipPlanex(GLenum plane, const GLfixed *equation) {
    setClipPlane(plane, equation, precise);
}

void GL_APIENTRY getClipPlanef(GLenum plane, GLfloat *equation) {
    getClipPlane(plane, equation, [](double number) { return static_cast<GLfloat>(number); });
}

void GL_APIENTRY getClipPlanex(GLenum plane, GLfixed *equation) {
    getClipPlane(plane, equation, toFixed);
}

} // namespace overrides
