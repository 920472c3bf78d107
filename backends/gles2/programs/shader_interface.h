// What a shader gives to the next one or takes from the one before, as its text declares it. The host tells names,
// types and places of it alone, and shaders of two programs have to agree in precision and interpolation too. Pure.
#pragma once

#include "es_gl.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

// By place where the text gives one, otherwise by name: all that has to be the same on both sides.
using ShaderInterface = std::map<std::string, std::string, std::less<>>;

// stage: GL_VERTEX_SHADER or GL_FRAGMENT_SHADER. direction: "in" or "out". Nothing for a text with macros or
// conditions, which only a compiler can read.
[[nodiscard]] std::optional<ShaderInterface> declaredInterface(std::string_view source, GLenum stage,
                                                               std::string_view direction);
