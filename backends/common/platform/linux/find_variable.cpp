#include "common/find_variable.h"

#include <cstdlib>

const char *findVariable(const char *name) {
    return secure_getenv(name);
}
