// What a context keeps of vertex arrays. Used on the context's thread.
#pragma once

#include "vertices/array_objects.h"

struct Vertices {
    ArrayObjects arrays;
    GLuint streamBuffer = 0; // the host's name; made at the first upload
};
