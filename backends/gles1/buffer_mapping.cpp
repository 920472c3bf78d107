// Mapping of buffers: ES 1 has write access alone.
#include "es_context.h"
#include "host_gl.h"
#include "overrides.h"

namespace overrides {

void *GL_APIENTRY mapBufferOES(GLenum target, GLenum access) {
    if (access == GL_WRITE_ONLY_OES) return hostGl().mapBuffer(target, access);
    raise(GL_INVALID_ENUM);
    return nullptr;
}

} // namespace overrides
