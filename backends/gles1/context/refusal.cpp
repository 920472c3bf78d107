#include "common/refusal.h"

#include "common/host_features.h"
#include "common/per_back_end/host_gl.h"

std::string reasonToRefuse(const ContextAttribs &) {
    const HostGl *const gl = findHostGl();
    if (!gl) return "the host's OpenGL library is missing or lacks functions";
    // A core context, which lacks the fixed-function pipeline, has no extension string of this form.
    if (!gl->getString(GL_EXTENSIONS)) {
        while (gl->getError() == GL_INVALID_ENUM) {
        }
        return "the host's context is a core one, and ES 1 needs a compatibility context";
    }
    // Buffer objects, texture combiners and point parameters require OpenGL 1.5.
    if (HostFeatures::ofCurrentContext()->version() < 15) return "the host's OpenGL is older than 1.5";
    return "";
}
