#include "egl/desktop_clients.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cstring>
#include <string_view>

#include "egl/es_library.h"
#include "egl/extension_entries.h"
#include "egl/standard/devices.h"
#include "egl/standard/syncs.h"
#include "egl/state.h"
#include "foundation/environment.h"
#include "foundation/log.h"

namespace egl::desktop_clients {

namespace {

struct Entry {
    const char *name;
    Function function;
};

const Entry entries[] = {
#define CORE_ENTRY(name) {#name, reinterpret_cast<Function>(name)},
#include "egl/data/core_entries.def"
#undef CORE_ENTRY
    {"eglCreateImageKHR", reinterpret_cast<Function>(createImageKHR)},
    {"eglCreatePlatformWindowSurfaceEXT", reinterpret_cast<Function>(createPlatformWindowSurfaceEXT)},
    {"eglCreatePlatformPixmapSurfaceEXT", reinterpret_cast<Function>(createPlatformPixmapSurfaceEXT)},
    {"eglQueryDevicesEXT", reinterpret_cast<Function>(standard::queryDevices)},
    {"eglQueryDeviceAttribEXT", reinterpret_cast<Function>(standard::queryDeviceAttrib)},
    {"eglQueryDeviceStringEXT", reinterpret_cast<Function>(standard::queryDeviceString)},
    {"eglQueryDisplayAttribEXT", reinterpret_cast<Function>(standard::queryDisplayAttrib)},
    {"eglSignalSyncKHR", reinterpret_cast<Function>(standard::signalSync)},
};

bool isSet(const char *variable) {
    const char *value = findVariable(variable);
    return value && strcmp(value, "1") == 0;
}

const std::array<EsLibrary, 2> &backEnds() {
    static const auto &libraries =
        *new std::array{EsLibrary(State::loadEsLibrary(2)), EsLibrary(State::loadEsLibrary(1))};
    return libraries;
}

} // namespace

bool isOn() {
    static const bool on = isSet("ZELVANE_DESKTOP_CLIENTS");
    return on;
}

bool haveOpenGl() {
    static const bool have = isOn() && isSet("ZELVANE_DESKTOP_OPENGL");
    return have;
}

Function findEntry(const char *name) {
    if (!isOn()) return nullptr;
    for (const Entry &entry : entries) {
        if (strcmp(name, entry.name) == 0) return entry.function;
    }
    return nullptr;
}

bool isKnownToBackEnd(const char *name) {
    if (!isOn()) return false;
    return std::ranges::any_of(backEnds(), [&](const EsLibrary &library) {
        return library.getExtProcAddress && library.getExtProcAddress(name);
    });
}

Function findHostFunction(const char *name) {
    const std::string_view wanted = name;
    if (!haveOpenGl() || !wanted.starts_with("gl") || wanted.starts_with("glX")) return nullptr;
    return reinterpret_cast<Function>(state().openGLLibrary().getSymbol(name));
}

void loadBackEnds() {
    if (isOn()) (void)backEnds();
}

uint64_t drawableOf(void *native) {
    if (!isOn()) return reinterpret_cast<uintptr_t>(native);
    // Xlib's Window type has the width of long.
    return native ? *static_cast<const unsigned long *>(native) : 0;
}

void tellOfOtherApi(EGLenum api) {
    static std::atomic<bool> isTold = false;
    if (!isOn() || isTold.exchange(true)) return;
    const bool isOpenGl = api == EGL_OPENGL_API;
    const char *wanted = isOpenGl ? "desktop OpenGL" : "an API of another kind";
    const char *offered = haveOpenGl() ? "OpenGL and OpenGL ES only" : "OpenGL ES only";
    logMessage(LogError, "%s%s%s%s%s", "The application requests ", wanted, "; this EGL supports ", offered,
               isOpenGl ? "; try --opengl." : ".");
}

} // namespace egl::desktop_clients
