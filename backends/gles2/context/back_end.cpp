// Makes the contexts of this back end, or says why the host carries none.
#include "common/host_features.h"
#include "common/per_back_end/host_gl.h"
#include "common/refusal.h"
#include "context/es_context.h"

#include <memory>
#include <new>
#include <string>

namespace {

// Empty when the host carries a context of that version.
std::string reasonToRefuse(GLint major) {
    if (!findHostGl()) return "the host has no OpenGL library with the functions that it takes";
    const HostFeatures host;
    const char *const version = reinterpret_cast<const char *>(hostGl().getString(GL_VERSION));
    const std::string found = std::string("the host's context is ") + (version ? version : "of no known version");
    if (host.version() < 32) return found + "; version 3.2 is the least";
    if (!host.carries(41, "GL_ARB_ES2_compatibility")) return found + " and lacks GL_ARB_ES2_compatibility";
    if (major >= 3 && !host.carries(43, "GL_ARB_ES3_compatibility")) {
        return found + " and lacks GL_ARB_ES3_compatibility";
    }
    return "";
}

} // namespace

zvEsContext zvCreateEsContext(const ContextAttribs *attribs, const uint64_t[2], void *settings, zvEsContext share) {
    if (!attribs) return nullptr;
    if (const std::string reason = reasonToRefuse(attribs->esMajor); !reason.empty()) {
        reportRefusal("no OpenGL ES " + std::to_string(attribs->esMajor) + " context: " + reason);
        return nullptr;
    }
    try {
        return std::make_unique<EsContext>(*attribs, settings, share).release();
    } catch (const std::bad_alloc &) {
        return nullptr;
    }
}
