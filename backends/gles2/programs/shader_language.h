// The shading language of ES on the host's compiler, which takes it but for a few words. Pure.
#pragma once

#include "es_gl.h"

#include <string>
#include <string_view>

// What the host is to compile for a source of an ES context of this version: the source itself wherever that is
// possible. ES takes a source without "#version" as version 100, desktop OpenGL as 1.10; a version that the context
// does not have must not compile; an external sampler is one of two dimensions. Line numbers stay.
[[nodiscard]] std::string hostShaderSource(std::string_view source, GLint major, GLint minor);

// Puts the replacement in the place of every whole word.
void replaceWords(std::string &source, std::string_view word, std::string_view replacement);
