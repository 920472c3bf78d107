// Buffer mapping: ES 1 allows write access only.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace overrides {

void *GL_APIENTRY mapBufferOES(GLenum target, GLenum access) {
    if (access == GL_WRITE_ONLY_OES) return hostGl().mapBuffer(target, access);
    raise(GL_INVALID_ENUM);
    return nullptr;
}

} // namespace overrides
