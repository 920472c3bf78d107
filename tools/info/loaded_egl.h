// The EGL functions of a library file that this process has loaded.
#pragma once

#include <string>

#include <EGL/egl.h>

struct LoadedEgl {
    // Loads the file. Throws a std::runtime_error with the loader's reason.
    explicit LoadedEgl(const std::string &file);

    decltype(&eglGetDisplay) getDisplay;
    decltype(&eglInitialize) initialize;
    decltype(&eglQueryString) queryString;
    decltype(&eglGetError) getError;
    decltype(&eglGetConfigs) getConfigs;
    decltype(&eglGetConfigAttrib) getConfigAttrib;
    decltype(&eglCreateContext) createContext;
    decltype(&eglDestroyContext) destroyContext;
    decltype(&eglCreatePbufferSurface) createPbufferSurface;
    decltype(&eglDestroySurface) destroySurface;
    decltype(&eglMakeCurrent) makeCurrent;
    decltype(&eglGetProcAddress) getProcAddress;
};
