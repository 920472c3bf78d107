// An application with a connection and windows of its own, next to the operations on the same server.
#pragma once

#include <gmock/gmock.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "host/platform/operations.h"

// Defines short macros; it has to come last.
#include <GL/glx.h>
#include <X11/Xutil.h>

using namespace host::platform;
using testing::IsEmpty;
using testing::SizeIs;

constexpr uint32_t coreList[] = {OpenGLProfile, profile3_2Core, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};
constexpr uint32_t legacyList[] = {OpenGLProfile, profileLegacy, DoubleBuffer, ColorSize, 24, DepthSize, 24, 0};

struct Release {
    void operator()(PixelFormat *format) const { operations.releasePixelFormat(format); }
    void operator()(ContextContainer *container) const { operations.releaseContext(container); }
    void operator()(PixelBuffer *buffer) const { operations.releasePixelBuffer(buffer); }
};
using Format = std::unique_ptr<PixelFormat, Release>;
using Context = std::unique_ptr<ContextContainer, Release>;
using Buffer = std::unique_ptr<PixelBuffer, Release>;

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
        const Window root = DefaultRootWindow(application);
        Visual *const own = visual ? visual->visual : DefaultVisual(application, DefaultScreen(application));
        XSetWindowAttributes attributes{};
        attributes.colormap = XCreateColormap(application, root, own, AllocNone);
        const Window result =
            XCreateWindow(application, root, left, 0, width, height, 0, visual ? visual->depth : CopyFromParent,
                          InputOutput, own, CWBorderPixel | CWColormap, &attributes);
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
