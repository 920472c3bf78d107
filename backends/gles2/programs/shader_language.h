// Translates ES shading language for the host's compiler, which accepts most of it. Pure.
#pragma once

#include "es_gl.h"

#include <string>
#include <string_view>

// The source to compile on the host for a source of an ES context of this version: the same source if that is possible.
// ES treats a source without "#version" as version 100, desktop OpenGL as 1.10; a version that the context lacks must
// not compile; an external sampler is a two-dimensional one. Line numbers are kept.
[[nodiscard]] std::string hostShaderSource(std::string_view source, GLint major, GLint minor);

// Replaces every whole word.
void replaceWords(std::string &source, std::string_view word, std::string_view replacement);
