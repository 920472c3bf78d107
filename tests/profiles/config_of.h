// Attribute lists without their end.
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

// Over the defaults, without a config id or a depth, which lists may ask for all the same.
inline egl::Config configOf(const List &attributes) {
    return {nullptr, ended(attributes).data()};
}
