// OpenGL ES 3.2 with its extensions.
#pragma once

// The names of extensions have prototypes too.
#define GL_GLEXT_PROTOTYPES
#include <GLES3/gl32.h>

// gl2ext.h repeats names of gl32.h in the same words.
#include <GLES2/gl2ext.h>
