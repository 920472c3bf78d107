#include "common/refusal.h"

#include "common/host_features.h"
#include "common/per_back_end/host_gl.h"

std::string reasonToRefuse(const ContextAttribs &attribs) {
    const HostGl *const gl = findHostGl();
    if (!gl) return "the host's OpenGL library is missing or lacks functions";
    const auto host = HostFeatures::ofCurrentContext();
    const char *const version = reinterpret_cast<const char *>(gl->getString(GL_VERSION));
    const std::string found = std::string("the host's context has version ") + (version ? version : "unknown");
    if (host->version() < 32) return found + "; 3.2 or later is required";
    if (!host->carries(41, "GL_ARB_ES2_compatibility")) return found + " and lacks GL_ARB_ES2_compatibility";
    if (attribs.esMajor >= 3 && !host->carries(43, "GL_ARB_ES3_compatibility")) {
        return found + " and lacks GL_ARB_ES3_compatibility";
    }
    return "";
}
