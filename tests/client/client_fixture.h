// An application with an X window and an EGL context on the real library.
#pragma once

#include <gtest/gtest.h> // before Xlib, whose macros it does not survive

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES2/gl2.h>
#include <X11/Xlib.h>

#include <array>

using Pixel = std::array<uint8_t, 4>;

// The functions that the tests draw with, as eglGetProcAddress hands them out.
struct GlFunctions {
    GlFunctions();

    PFNGLCLEARPROC clear;
    PFNGLCLEARCOLORPROC clearColor;
    PFNGLREADPIXELSPROC readPixels;
    PFNGLGETSTRINGPROC getString;
    PFNGLGETERRORPROC getError;
    PFNGLVIEWPORTPROC viewport;
    PFNGLGENTEXTURESPROC genTextures;
    PFNGLBINDTEXTUREPROC bindTexture;
    PFNGLISTEXTUREPROC isTexture;
};

class ClientTest : public testing::Test {
protected:
    ClientTest();
    ~ClientTest() override;

    // Chooses the first config and makes an ES 2 context on it.
    void initialise(EGLNativeDisplayType native);
    EGLContext makeContext(EGLContext share = EGL_NO_CONTEXT, EGLint major = 2);
    Window makeWindow(int width = 64, int height = 48);
    // A window of a visual that is not the default one, or None when the server has only one.
    Window makeWindowOfAnotherVisual(int width, int height);
    EGLSurface makeSurface(Window window);
    // Clears the current surface with the colour and reads its middle back.
    static Pixel drawAndRead(const GlFunctions &gl, float red, float green, float blue);
    // What the screen shows; windows stand at its origin, the newest on top.
    Pixel shownPixel(int x, int y);

    Display *m_x;
    EGLDisplay m_egl = EGL_NO_DISPLAY;
    EGLConfig m_config = nullptr;
};
