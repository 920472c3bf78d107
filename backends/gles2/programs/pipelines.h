// Pipelines of separable programs. ES requires that the interfaces between a vertex and a fragment program match, which
// the host does not check.
#pragma once

#include "programs/shared_programs.h"

class EsContext;

// The interface of a separable program of one stage to the other; empty where it cannot be determined.
[[nodiscard]] ProgramEnd declaredEnd(GLuint program);

// Whether the interfaces of the pipeline's programs do not match.
[[nodiscard]] bool isPipelineBroken(SharedPrograms &shared, GLuint pipeline);
