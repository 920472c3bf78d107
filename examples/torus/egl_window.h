// An X window with an OpenGL ES 2 context that is current on it. One thread.
#pragma once

#include "gl_functions.h"

#include <X11/Xlib.h>

#include <EGL/egl.h>

#include <string>

struct Size {
    EGLint width = 0;
    EGLint height = 0;
};

class EglWindow {
public:
    // Opens the window, waits until it is shown and binds the context. Throws std::runtime_error naming the failure.
    EglWindow(const char *title, Size size, EGLint samples);
    ~EglWindow();
    EglWindow(const EglWindow &) = delete;
    EglWindow &operator=(const EglWindow &) = delete;

    // The functions of the current context.
    [[nodiscard]] GlFunctions loadFunctions() const;
    // The surface's current size, which follows the window.
    [[nodiscard]] Size surfaceSize() const;
    void resize(Size size);
    // Handles window events. False once the window was closed.
    [[nodiscard]] bool handleEvents();
    void swapBuffers();

    [[nodiscard]] std::string eglVersion() const;
    [[nodiscard]] std::string eglVendor() const;
    [[nodiscard]] EGLint configAttribute(EGLint attribute) const;

private:
    void chooseConfig(EGLint samples);
    void openWindow(const char *title, Size size);
    void bindContext();
    void close();

    Display *m_x = nullptr;
    Window m_window = 0;
    Colormap m_colormap = 0;
    Atom m_deleteMessage = 0;
    EGLDisplay m_display = EGL_NO_DISPLAY;
    EGLConfig m_config = nullptr;
    EGLContext m_context = EGL_NO_CONTEXT;
    EGLSurface m_surface = EGL_NO_SURFACE;
};
