// Makes the contexts of this back end, or says why the host carries none.
#include "common/per_back_end/host_gl.h"
#include "common/refusal.h"
#include "context/es_context.h"

#include <memory>

namespace {

// Why the current host context cannot serve ES 1; null when it can.
const char *refusal(const HostGl &gl) {
    // A core context has no list of this form: it lacks the fixed function.
    if (!gl.getString(GL_EXTENSIONS)) {
        while (gl.getError() == GL_INVALID_ENUM) {
        }
        return "the host's context is a core one, and ES 1 needs a compatibility context";
    }
    // Buffer objects, texture combiners and point parameters are there from 1.5 on.
    if (HostFeatures().version() < 15) return "the host's OpenGL is older than 1.5";
    return nullptr;
}

} // namespace

zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t[2], void *settings,
                              zvEsContext shareEsContext) {
    if (!attribs) return nullptr;
    try {
        const HostGl *const gl = findHostGl();
        const char *const reason = gl ? refusal(*gl) : "the host's OpenGL library is missing or lacks functions";
        if (reason) {
            reportRefusal(std::string("no OpenGL ES 1 context: ") + reason);
            return nullptr;
        }
        return std::make_unique<EsContext>(*attribs, settings, shareEsContext).release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
