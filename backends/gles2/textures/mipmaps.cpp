// Mipmaps that the host generates.
#include "common/per_back_end/host_gl.h"
#include "common/per_back_end/overrides.h"
#include "context/es_context.h"

namespace overrides {

// A core context has lost this hint; it never meant anything.
void GL_APIENTRY hint(GLenum target, GLenum mode) {
    EsContext *const context = EsContext::current();
    if (!context || target != GL_GENERATE_MIPMAP_HINT) return hostGl().hint(target, mode);
    if (mode != GL_FASTEST && mode != GL_NICEST && mode != GL_DONT_CARE) return context->raise(GL_INVALID_ENUM);
    context->textures.mipmapHint = mode;
}

} // namespace overrides
