// The vertex array state of a context. Used on the context's thread.
#pragma once

#include "vertices/array_objects.h"

struct Vertices {
    ArrayObjects arrays;
    GLuint streamBuffer = 0; // the host's name; created at the first upload
};
