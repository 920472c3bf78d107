// An application with an X window and an EGL context on the real library.
#pragma once

#include <gtest/gtest.h> // before Xlib, whose macros break it

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES2/gl2.h>
#include <X11/Xlib.h>

#include <array>

using Pixel = std::array<uint8_t, 4>;

const Pixel red{255, 0, 0, 255};
const Pixel green{0, 255, 0, 255};

// A result of eglGetProcAddress that converts to any function type.
struct Named {
    explicit Named(const char *name) : name(name) {}
    template <typename Function>
    operator Function *() const {
        return reinterpret_cast<Function *>(eglGetProcAddress(name));
    }
    const char *name;
};

// The functions that the tests draw with.
struct GlFunctions {
    PFNGLCLEARPROC clear = Named("glClear");
    PFNGLCLEARCOLORPROC clearColor = Named("glClearColor");
    PFNGLREADPIXELSPROC readPixels = Named("glReadPixels");
    PFNGLGETSTRINGPROC getString = Named("glGetString");
    PFNGLGETERRORPROC getError = Named("glGetError");
    PFNGLVIEWPORTPROC viewport = Named("glViewport");
    PFNGLBINDTEXTUREPROC bindTexture = Named("glBindTexture");
    PFNGLDELETETEXTURESPROC deleteTextures = Named("glDeleteTextures");
    PFNGLTEXIMAGE2DPROC texImage2D = Named("glTexImage2D");
    PFNGLGETTEXPARAMETERIVPROC getTexParameteriv = Named("glGetTexParameteriv");
    PFNGLISTEXTUREPROC isTexture = Named("glIsTexture");
};

class ClientTest : public testing::Test {
protected:
    ClientTest();
    ~ClientTest() override;

    // Chooses the first config and creates an ES 2 context on it.
    void initialise(EGLNativeDisplayType native);
    EGLContext makeContext(EGLContext share = EGL_NO_CONTEXT, EGLint major = 2);
    Window makeWindow();
    Window makeWindowOf(Visual *visual, int depth);
    // A window whose visual is not the default one.
    Window makeWindowOfAnotherVisual();
    EGLSurface makeSurface(Window window);
    void bind(EGLSurface surface, EGLContext context);
    // Waits for the server, so that it has drawn.
    EGLint widthOf(EGLSurface surface);
    // Clears the current surface with the colour and reads its middle back.
    static Pixel drawAndRead(const GlFunctions &gl, float red, float green, float blue);
    Pixel shownAfterSwap(EGLSurface surface, int x, int y);
    // The pixel on the screen. Windows are at its origin, the newest on top.
    Pixel shownPixel(int x, int y);

    Display *m_x;
    EGLDisplay m_egl = EGL_NO_DISPLAY;
    EGLConfig m_config = nullptr;
};
