// Viewports with the device's maximum size, and depth ranges, which desktop OpenGL takes in double precision.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

#include <algorithm>
#include <vector>

namespace overrides {

void GL_APIENTRY viewport(GLint x, GLint y, GLsizei width, GLsizei height) {
    const EsContext *const context = EsContext::current();
    const auto *const most = context ? context->announced.limit(GL_MAX_VIEWPORT_DIMS) : nullptr;
    if (most) {
        width = std::min(width, static_cast<GLsizei>((*most)[0]));
        height = std::min(height, static_cast<GLsizei>((*most)[1]));
    }
    hostGl().viewport(x, y, width, height);
}

void GL_APIENTRY depthRangeArrayfv(GLuint first, GLsizei count, const GLfloat *v) {
    std::vector<GLdouble> ranges;
    if (count > 0 && v) ranges.assign(v, v + size_t(count) * 2);
    hostGl().depthRangeArrayv(first, count, ranges.data());
}

void GL_APIENTRY depthRangeIndexedf(GLuint index, GLfloat near, GLfloat far) {
    hostGl().depthRangeIndexed(index, near, far);
}

} // namespace overrides
