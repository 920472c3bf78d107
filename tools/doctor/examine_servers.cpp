// The X server with its GLX, and the host's OpenGL on it. Both are queried in child processes.
#include <cstdlib>
#include <stdexcept>

#include "capability/host_identity.h"
#include "host/opengl_library.h"
#include "tools/command/child_answer.h"
#include "tools/doctor/diagnosis.h"

// Defines short macros; must be included last.
#include <GL/glx.h>

namespace {

constexpr std::chrono::seconds limit(10);

struct UsedExtension {
    const char *name;
    const char *lack; // the feature that is missing without it; null if the library does not require it
};

constexpr UsedExtension usedExtensions[] = {
    {"GLX_ARB_create_context_profile", "contexts of a chosen version, which OpenGL ES 2 and 3 need"},
    {"GLX_ARB_create_context_robustness", nullptr},
    {"GLX_EXT_buffer_age", nullptr},
    {"GLX_EXT_no_config_context", nullptr},
    {"GLX_EXT_swap_control", nullptr},
    {"GLX_MESA_query_renderer", nullptr},
};

Json queryXServer() {
    Display *const display = XOpenDisplay(nullptr);
    if (!display) throw std::runtime_error("is not there");
    const int screen = DefaultScreen(display);
    Json facts = {{"vendor", std::string(ServerVendor(display)) + ' ' + std::to_string(VendorRelease(display))}};
    int major = 0, minor = 0;
    if (!glXQueryExtension(display, nullptr, nullptr) || !glXQueryVersion(display, &major, &minor)) {
        facts["glx"] = nullptr;
        return facts;
    }
    const auto text = [](const char *string) { return string ? Json(string) : Json(nullptr); };
    facts["glx"] = std::to_string(major) + '.' + std::to_string(minor);
    facts["glxServer"] = text(glXQueryServerString(display, screen, GLX_VENDOR));
    facts["glxClient"] = text(glXGetClientString(display, GLX_VENDOR));
    const char *const all = glXQueryExtensionsString(display, screen);
    const std::string list = ' ' + std::string(all ? all : "") + ' ';
    Json &extensions = facts["glxExtensions"] = Json::object();
    for (const UsedExtension &extension : usedExtensions)
        extensions[extension.name] = list.find(std::string(" ") + extension.name + ' ') != std::string::npos;
    return facts;
}

Json queryHost() {
    const auto library = host::openHostOpenGLLibrary();
    if (!library.isLoaded()) throw std::runtime_error("there is no OpenGL library " + library.name());
    const auto identity = capability::probeHostIdentity(library, std::make_shared<glove::WSAPI>());
    if (!identity) throw std::runtime_error("the host has no OpenGL 3.2 core context");
    return {{"vendor", identity->vendor}, {"renderer", identity->renderer}, {"version", identity->version}};
}

constexpr char startServer[] =
    "start it in a desktop session, or with \"xvfb-run -s '-screen 0 1280x1024x24' PROGRAM\"";

} // namespace

void examineXServer(Diagnosis &diagnosis) {
    const char *const name = getenv("DISPLAY");
    Json &facts = diagnosis.facts["xServer"] = {{"display", name && *name ? Json(name) : Json(nullptr)}};
    if (!name || !*name) return diagnosis.add("there is no X server: DISPLAY is not set", startServer);
    const ChildAnswer answer = askInChild(queryXServer, limit);
    if (!answer.json) {
        facts["failure"] = answer.failure;
        return diagnosis.add(std::string("the X server \"") + name + "\" " + answer.failure, startServer);
    }
    facts.update(*answer.json);
    if (facts["glx"].is_null()) {
        return diagnosis.add(std::string("the X server \"") + name + "\" has no GLX",
                             "start the server with \"+extension GLX\", or use Xvfb or Xorg");
    }
    for (const UsedExtension &extension : usedExtensions) {
        if (extension.lack && !facts["glxExtensions"][extension.name])
            diagnosis.add(std::string("GLX lacks ") + extension.name + ": " + extension.lack,
                          "install the driver of the graphics card, or libgl1-mesa-dri");
    }
}

void examineHost(Diagnosis &diagnosis) {
    const Json &server = diagnosis.facts["xServer"];
    const bool hasGlx = server.contains("glx") && !server["glx"].is_null();
    Json &facts = diagnosis.facts["host"] = Json::object();
    if (!hasGlx) return;
    const ChildAnswer answer = askInChild(queryHost, limit);
    if (answer.json) {
        facts = *answer.json;
        return;
    }
    facts["failure"] = answer.failure;
    diagnosis.add("the host's OpenGL: " + answer.failure,
                  "install the driver of the graphics card, or libgl1-mesa-dri");
}
