// Ranges of depth by viewport, which desktop OpenGL takes in double precision.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"

#include <vector>

namespace overrides {

void GL_APIENTRY depthRangeArrayfv(GLuint first, GLsizei count, const GLfloat *v) {
    std::vector<GLdouble> ranges;
    if (count > 0 && v) ranges.assign(v, v + size_t(count) * 2);
    hostGl().depthRangeArrayv(first, count, ranges.data());
}

void GL_APIENTRY depthRangeIndexedf(GLuint index, GLfloat near, GLfloat far) {
    hostGl().depthRangeIndexed(index, near, far);
}

} // namespace overrides
