// The parameter names of ES 1: how many numbers each has and whether fixed point scales them.
#pragma once

#include "es_gl.h"

// Capabilities are the enumerants of glEnable.
enum class Kind { Value, Enumerant, Capability };
enum class Family { Fog, Light, LightModel, Material, PointParameter, TexEnv, TexParameter, TexGen };

struct Parameter {
    Family family;
    GLenum name;
    int count;
    Kind kind;
};

struct State {
    GLenum name;
    int count;
    Kind kind;
};

// Null for names that ES 1 lacks.
[[nodiscard]] const Parameter *findParameter(Family family, GLenum name);
[[nodiscard]] const State *findState(GLenum name);

// As findParameter, for a call with one number or a vector; null after raising the error that ES defines for it.
[[nodiscard]] const Parameter *checkScalar(Family family, GLenum name);
[[nodiscard]] const Parameter *checkVector(Family family, GLenum name);
