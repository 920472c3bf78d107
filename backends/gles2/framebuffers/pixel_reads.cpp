// Pixels that come back from a framebuffer.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "host_types.h"

namespace overrides {

void GL_APIENTRY readPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type, void *pixels) {
    hostGl().readPixels(x, y, width, height, format, hostType(type), pixels);
}

} // namespace overrides
