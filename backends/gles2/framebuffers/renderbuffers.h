// Renderbuffers by the application's names.
#pragma once

#include "es_gl.h"

// The host's name for the application's; a new name gets an object.
[[nodiscard]] GLuint hostRenderbuffer(GLuint name);
