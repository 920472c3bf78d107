#include "foundation/environment.h"

#include <cstdlib>
#include <sys/auxv.h>

bool hasForeignRights() {
    return getauxval(AT_SECURE) != 0;
}

const char *findVariable(const char *name) {
    return secure_getenv(name);
}
