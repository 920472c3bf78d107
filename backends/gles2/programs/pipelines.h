// Pipelines of separable programs. ES draws nothing where a vertex and a fragment program do not agree in what lies
// between them, which the host does not look at.
#pragma once

#include "programs/shared_programs.h"

class EsContext;

// What a separable program of one stage declares towards the other; empty where it does not tell.
[[nodiscard]] ProgramEnd declaredEnd(GLuint program);

// Whether the programs of the pipeline disagree.
[[nodiscard]] bool isPipelineBroken(SharedPrograms &shared, GLuint pipeline);
