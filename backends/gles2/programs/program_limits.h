// What a device takes of a program, where it takes less than the host.
#pragma once

#include "es_gl.h"

class EsContext;

// Of a linked program, with the host context current. A host that does not tell what its programs use holds its own
// limits alone.
[[nodiscard]] bool isWithinLimits(const EsContext &context, GLuint program);
