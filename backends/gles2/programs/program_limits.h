// The limits of programs where the device's are lower than the host's.
#pragma once

#include "es_gl.h"

class EsContext;

// For a linked program, with the host context current. If the host does not report what its programs use, only its own
// limits apply.
[[nodiscard]] bool isWithinLimits(const EsContext &context, GLuint program);
