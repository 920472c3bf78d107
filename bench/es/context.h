// The context that one side of es_bench measures: current, with 64 x 64 pixels, and its functions.
#pragma once

enum class Side {
    Host,        // desktop OpenGL by GLX, core profile
    BackEnd,     // the function that libGLESv2.so.2 returns, without the proxy of libEGL.so.1
    Application, // the result of eglGetProcAddress
};

// Creates a context and binds it for the rest of the process. Ends the process with a message when there is none.
// major: of OpenGL ES.
void openContext(Side side, int major);

// The side's function of this name, or null.
[[nodiscard]] void *function(const char *name);

[[noreturn]] void fail(const char *what);

// One for each kind of context.
void openGlxContext();
void openEglContext(bool isPastProxy, int major);
[[nodiscard]] void *glxFunction(const char *name);
[[nodiscard]] void *eglFunction(const char *name);
