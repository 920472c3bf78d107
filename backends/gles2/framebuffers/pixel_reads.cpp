// Pixels that come back from a framebuffer.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "vertices/vertex_format.h"

namespace overrides {

void GL_APIENTRY readPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type, void *pixels) {
    hostGl().readPixels(x, y, width, height, format, type == halfFloatOes ? GLenum(GL_HALF_FLOAT) : type, pixels);
}

} // namespace overrides
