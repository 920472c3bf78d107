// Entries that create, destroy and query surfaces.
#include "egl/call_reports.h"
#include "egl/desktop_clients.h"
#include "egl/entry_frame.h"
#include "egl/refusal.h"
#include "egl/standard/surface_rules.h"
#include "egl/surface.h"
#include "foundation/attribute_list.h"

#include <algorithm>
#include <span>

namespace egl {

namespace {

using refusals::because;
using refusals::Rule;

constexpr EGLint windowAttributes[] = {EGL_RENDER_BUFFER, EGL_VG_COLORSPACE, EGL_VG_ALPHA_FORMAT, EGL_GL_COLORSPACE};
constexpr EGLint pbufferAttributes[] = {
    EGL_WIDTH,          EGL_HEIGHT,        EGL_LARGEST_PBUFFER, EGL_TEXTURE_FORMAT, EGL_TEXTURE_TARGET,
    EGL_MIPMAP_TEXTURE, EGL_VG_COLORSPACE, EGL_VG_ALPHA_FORMAT, EGL_GL_COLORSPACE,
};

// Checks the keys only; values are stored unchecked.
EGLint keysError(const EGLint *attributes, std::span<const EGLint> accepted) {
    for (const auto &[name, value] : AttributeList(attributes)) {
        if (std::ranges::find(accepted, name) == accepted.end())
            return because(Rule::unknownAttribute, EGL_BAD_ATTRIBUTE, {.attribute = name});
    }
    return EGL_SUCCESS;
}

bool hasSurfaceType(const Config &config, EGLint bit) {
    return config.attributeOr0(EGL_SURFACE_TYPE) & bit;
}

// Devices do not check the config's surface type: a config without EGL_WINDOW_BIT accepts a window too.
EGLint windowSurfaceError(const Display &display, const Config &config, EGLNativeWindowType window,
                          const EGLint *attributes) {
    if (desktop_clients::isOn()) {
        const EGLint error = standard::windowSurfaceError(config, attributes);
        if (error != EGL_SUCCESS) return error;
        if (!host::isHostWindow({display.nativeDisplay, hostWord(window)})) return EGL_BAD_NATIVE_WINDOW;
        return display.hasSurfaceOf(hostWord(window)) ? because(Rule::windowInUse, EGL_BAD_ALLOC) : EGL_SUCCESS;
    }
    return keysError(attributes, windowAttributes);
}

EGLint pbufferSurfaceError(const Config &config, const EGLint *attributes) {
    if (desktop_clients::isOn()) return standard::pbufferSurfaceError(config, attributes);
    if (!hasSurfaceType(config, EGL_PBUFFER_BIT))
        return because(Rule::configWithoutPbuffers, EGL_BAD_MATCH, {.config = config.attributeOr0(EGL_CONFIG_ID)});
    return keysError(attributes, pbufferAttributes);
}

EGLint pixmapSurfaceError(const Display &display, const Config &config, uint64_t pixmap, const EGLint *attributes) {
    if (desktop_clients::isOn()) {
        const EGLint error = standard::pixmapSurfaceError(config, attributes);
        return error == EGL_SUCCESS ? standard::pixmapError(display, pixmap, surfaceFormat(config)) : error;
    }
    if (const EGLint error = keysError(attributes, {}); error != EGL_SUCCESS) return error;
    if (hasSurfaceType(config, EGL_PIXMAP_BIT)) return EGL_SUCCESS;
    return because(Rule::configWithoutPixmaps, EGL_BAD_MATCH, {.config = config.attributeOr0(EGL_CONFIG_ID)});
}

EGLSurface finishSurface(const std::shared_ptr<Surface> &surface) {
    if (!surface) return fail(because(Rule::hostSurface, EGL_BAD_ALLOC), EGL_NO_SURFACE);
    return succeed(asHandle<EGLSurface>(surface->handle));
}

} // namespace

} // namespace egl

using namespace egl;

EGLSurface EGLAPIENTRY eglCreateWindowSurface(EGLDisplay dpy, EGLConfig configHandle, EGLNativeWindowType window,
                                              const EGLint *attributes) {
    const EGLSurface made = entry(dpy, EGL_NO_SURFACE, [&](Display &display) {
        const auto config = display.findConfig(configHandle);
        if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_SURFACE);
        if (!window) return fail(EGL_BAD_NATIVE_WINDOW, EGL_NO_SURFACE);
        if (const EGLint error = windowSurfaceError(display, *config, window, attributes); error != EGL_SUCCESS) {
            return fail(error, EGL_NO_SURFACE);
        }
        return finishSurface(display.createWindowSurface(*config, hostWord(window), attributes));
    });
    return reports::told(made, reports::surface, "eglCreateWindowSurface", dpy, configHandle, attributes);
}

EGLSurface EGLAPIENTRY eglCreatePbufferSurface(EGLDisplay dpy, EGLConfig configHandle, const EGLint *attributes) {
    const EGLSurface made = entry(dpy, EGL_NO_SURFACE, [&](Display &display) {
        const auto config = display.findConfig(configHandle);
        if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_SURFACE);
        const EGLint error = pbufferSurfaceError(*config, attributes);
        if (error != EGL_SUCCESS) return fail(error, EGL_NO_SURFACE);
        return finishSurface(display.createPbufferSurface(*config, attributes));
    });
    return reports::told(made, reports::surface, "eglCreatePbufferSurface", dpy, configHandle, attributes);
}

// Devices do not use the pixmap: the surface has a handle and attributes only.
EGLSurface EGLAPIENTRY eglCreatePixmapSurface(EGLDisplay dpy, EGLConfig configHandle, EGLNativePixmapType pixmap,
                                              const EGLint *attributes) {
    const EGLSurface made = entry(dpy, EGL_NO_SURFACE, [&](Display &display) {
        const auto config = display.findConfig(configHandle);
        if (!config) return fail(EGL_BAD_CONFIG, EGL_NO_SURFACE);
        const EGLint error = pixmapSurfaceError(display, *config, hostWord(pixmap), attributes);
        if (error != EGL_SUCCESS) return fail(error, EGL_NO_SURFACE);
        return finishSurface(display.createPixmapSurface(*config, hostWord(pixmap), attributes));
    });
    return reports::told(made, reports::surface, "eglCreatePixmapSurface", dpy, configHandle, attributes);
}

EGLSurface EGLAPIENTRY eglCreatePbufferFromClientBuffer(EGLDisplay dpy, EGLenum, EGLClientBuffer, EGLConfig,
                                                        const EGLint *) {
    return entry(dpy, EGL_NO_SURFACE, [](Display &) { return fail(EGL_BAD_PARAMETER, EGL_NO_SURFACE); });
}

EGLBoolean EGLAPIENTRY eglDestroySurface(EGLDisplay dpy, EGLSurface surface) {
    return entry(dpy, EGL_FALSE, [&](Display &display) {
        if (!display.findSurface(surface)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        // A destroyed surface is still found while it is current, but cannot be destroyed again.
        if (!display.destroySurface(surface)) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        return succeed(EGL_TRUE);
    });
}

EGLBoolean EGLAPIENTRY eglQuerySurface(EGLDisplay dpy, EGLSurface surface, EGLint attribute, EGLint *value) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        const auto found = display.findSurface(surface);
        if (!found) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (!desktop_clients::isOn()) return finish(found->query(attribute, value));
        return finish(value ? standard::querySurface(*found, attribute, value) : EGL_BAD_PARAMETER);
    });
}

// Devices accept three attributes and discard their values, so a later query returns the old ones.
EGLBoolean EGLAPIENTRY eglSurfaceAttrib(EGLDisplay dpy, EGLSurface surface, EGLint attribute, EGLint value) {
    return entry<EGLBoolean>(dpy, EGL_FALSE, [&](Display &display) -> EGLBoolean {
        const auto found = display.findSurface(surface);
        if (!found) return fail(EGL_BAD_SURFACE, EGL_FALSE);
        if (desktop_clients::isOn()) return finish(standard::setSurfaceAttribute(*found, attribute, value));
        switch (attribute) {
        case EGL_MIPMAP_LEVEL:
        case EGL_SWAP_BEHAVIOR:
        case EGL_MULTISAMPLE_RESOLVE:
            return succeed(EGL_TRUE);
        default:
            return fail(EGL_BAD_ATTRIBUTE, EGL_FALSE);
        }
    });
}
