#include "foundation/environment.h"

#include <cstdlib>
#include <unistd.h>

bool hasForeignRights() {
    return issetugid() != 0;
}

const char *findVariable(const char *name) {
    return hasForeignRights() ? nullptr : getenv(name);
}
