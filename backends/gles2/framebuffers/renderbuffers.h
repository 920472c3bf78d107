// Renderbuffers by the application's names.
#pragma once

#include "es_gl.h"

// The host's name for the application's, which gets an object if it is new.
[[nodiscard]] GLuint hostRenderbuffer(GLuint name);
