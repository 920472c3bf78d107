// What ES 1 calls by an enumerant: how many numbers each has and whether fixed point scales them.
#pragma once

#include "es_gl.h"

// Capabilities are enumerants that glEnable takes.
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

// Null for what ES 1 does not know.
[[nodiscard]] const Parameter *findParameter(Family family, GLenum name);
[[nodiscard]] const State *findState(GLenum name);

// As findParameter, for a call that gives one number or a vector; null after the error that ES names for it.
[[nodiscard]] const Parameter *checkScalar(Family family, GLenum name);
[[nodiscard]] const Parameter *checkVector(Family family, GLenum name);
