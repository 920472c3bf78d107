// An application with its own connection and windows, beside the operations on the same server.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <string_view>

#include "host/operations_host.h"

// Defines short macros; must be included last.
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

    // A window of the application whose creation may not have reached the server.
    Window window(int width, int height) {
        const Window result =
            XCreateSimpleWindow(application, DefaultRootWindow(application), 0, 0, width, height, 0, 0, 0);
        XMapWindow(application, result);
        return result;
    }

    void setText(Window window, const char *property, const char *type, std::string_view text) const {
        XChangeProperty(application, window, XInternAtom(application, property, False),
                        XInternAtom(application, type, False), 8, PropModeReplace,
                        reinterpret_cast<const unsigned char *>(text.data()), static_cast<int>(text.size()));
        XSync(application, False);
    }

    [[nodiscard]] View viewOf(Window window) const { return {reinterpret_cast<uint64_t>(application), window}; }

    [[nodiscard]] Format format(const uint32_t *list = coreList) const {
        return Format(operations.createPixelFormat(reinterpret_cast<uint64_t>(application), list));
    }

    [[nodiscard]] Context context(const uint32_t *list = coreList) const {
        return Context(operations.createContext(format(list).get(), nullptr));
    }

    Display *application = nullptr;
};
