/* Ends with 4 where it finds an EGL; with an argument it also calls what it may be linked to and nobody has. */
#include <EGL/egl.h>

#ifdef CALLS_NOBODYS
extern void eglNobodys(void);
#else
static void eglNobodys(void) {}
#endif

int main(int argc, char **argv) {
    (void)argv;
    if (argc > 1) eglNobodys();
    return eglGetError() == EGL_SUCCESS ? 4 : 5;
}
