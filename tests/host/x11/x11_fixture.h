// An application with a connection and windows of its own, next to the operations on the same server.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <vector>

#include "host/operations_host.h"

// Defines short macros; it has to come last.
#include <GL/glx.h>
#include <X11/Xutil.h>

using namespace host::platform;

constexpr uint32_t coreList[] = {OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};
constexpr uint32_t legacyList[] = {OpenGLProfile, profileLegacy, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};

template <typename Function>
Function gl(const char *name) {
    return reinterpret_cast<Function>(glXGetProcAddressARB(reinterpret_cast<const GLubyte *>(name)));
}

inline const char *glString(GLenum name) {
    return reinterpret_cast<const char *>(gl<const GLubyte *(*)(GLenum)>("glGetString")(name));
}

// Fills what is current with an opaque colour.
inline void clearTo(float red, float green, float blue) {
    gl<void (*)(float, float, float, float)>("glClearColor")(red, green, blue, 1);
    gl<void (*)(GLbitfield)>("glClear")(GL_COLOR_BUFFER_BIT);
}

class X11Host : public testing::Test {
protected:
    void SetUp() override {
        application = XOpenDisplay(nullptr);
        ASSERT_NE(application, nullptr) << "no X server: run by scripts/with-display";
    }

    void TearDown() override {
        operations.clearCurrentContext();
        if (application) XCloseDisplay(application);
    }

    // An application's window that the server may not have heard of yet.
    Window window(int width, int height, const XVisualInfo *visual = nullptr) {
        XSetWindowAttributes attributes{};
        attributes.border_pixel = 0;
        unsigned long mask = CWBorderPixel;
        if (visual) {
            attributes.colormap =
                XCreateColormap(application, DefaultRootWindow(application), visual->visual, AllocNone);
            mask |= CWColormap;
        }
        const Window result =
            XCreateWindow(application, DefaultRootWindow(application), left, 0, static_cast<unsigned>(width),
                          static_cast<unsigned>(height), 0, visual ? visual->depth : CopyFromParent, InputOutput,
                          visual ? visual->visual : static_cast<Visual *>(CopyFromParent), mask, &attributes);
        left += width + 64; // beside each other, since only what is seen can be read
        XMapWindow(application, result);
        return result;
    }

    [[nodiscard]] View viewOf(Window window) const { return {reinterpret_cast<uint64_t>(application), window}; }

    [[nodiscard]] Format format(const uint32_t *list = coreList) const {
        return Format(operations.createPixelFormat(reinterpret_cast<uint64_t>(application), list));
    }

    [[nodiscard]] Context context(const uint32_t *list = coreList) const {
        return Context(operations.createContext(format(list).get(), nullptr));
    }

    // What the window shows at a point, as 0xRRGGBB.
    unsigned long pixel(Window window, int x, int y) const {
        XImage *image = XGetImage(application, window, x, y, 1, 1, AllPlanes, ZPixmap);
        if (!image) return ~0ul;
        const unsigned long value = XGetPixel(image, 0, 0) & 0xFFFFFF;
        XDestroyImage(image);
        return value;
    }

    [[nodiscard]] std::vector<Window> childrenOf(Window window) const {
        Window root = 0, parent = 0, *children = nullptr;
        unsigned count = 0;
        XQueryTree(application, window, &root, &parent, &children, &count);
        std::vector<Window> result(children, children + count);
        if (children) XFree(children);
        return result;
    }

    Display *application = nullptr;
    int left = 0;
};
