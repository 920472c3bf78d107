/* Prints the file of the EGL that it is linked to; only Zelvane's has zvCurrentFrameNumber. */
#define _GNU_SOURCE
#include <EGL/egl.h>
#include <dlfcn.h>
#include <stdio.h>

#include "zelvane/back_end.h"
#include "zelvane/messages.h"

int main(void) {
    Dl_info library;
    if (zvCurrentFrameNumber() != 0 || !dladdr((void *)eglGetError, &library)) return 1;
    puts(library.dli_fname);
    return 0;
}
