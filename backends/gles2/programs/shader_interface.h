// The outputs and inputs of a shader towards its neighbours, as its text declares them. The host reports only their
// names, types and locations, and shaders of two programs have to match in precision and interpolation too. Pure.
#pragma once

#include "es_gl.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

// By location if the text has one, otherwise by name: all qualifiers that must match on both sides.
using ShaderInterface = std::map<std::string, std::string, std::less<>>;

// stage: GL_VERTEX_SHADER or GL_FRAGMENT_SHADER. direction: "in" or "out". Nothing for a text with macros or
// conditions, which only a compiler can evaluate.
[[nodiscard]] std::optional<ShaderInterface> declaredInterface(std::string_view source, GLenum stage,
                                                               std::string_view direction);
