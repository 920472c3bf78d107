// Attribute lists without EGL_NONE.
#pragma once

#include <cstdint>
#include <vector>

#include <EGL/egl.h>

#include "profiles/config.h"

using List = std::vector<int32_t>;

inline List ended(List list) {
    list.push_back(EGL_NONE);
    return list;
}

// Replaces defaults. Has no config id and no depth, which lists may still request.
inline egl::Config configOf(const List &attributes) {
    return {nullptr, ended(attributes).data()};
}
