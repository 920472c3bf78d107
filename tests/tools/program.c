/* Exits with 4 if it finds an EGL; with an argument it also calls a linked function that no library has. */
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
