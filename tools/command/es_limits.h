// The limits of OpenGL ES contexts, by name.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "journal/es_tables.h"

struct EsLimit {
    enum Kind { integer, wide, real, indexed };

    const char *name; // "GL_MAX_TEXTURE_SIZE"
    Kind kind;
    size_t count; // of numbers
};

// Sorted by name.
[[nodiscard]] std::span<const EsLimit> esLimits();

// The enumerant of the limit, with the versions and extensions that have it.
[[nodiscard]] const journal::EsEnumerant &enumerantOf(const EsLimit &limit);

// The element of a profile, without the suffix of an extension: "max_texture_size".
[[nodiscard]] std::string elementOf(const EsLimit &limit);
