#include "overrides.h"

#include <algorithm>
#include <iterator>
#include <type_traits>

namespace {

struct Override {
    std::string_view name;
    void *function;
};

// The published prototype is the judge of the signature.
#define OVERRIDE(name, function)                                                                                       \
    Override {                                                                                                         \
#name, reinterpret_cast < void *>(same <decltype(&::name)>(overrides::function))                               \
    }

template <typename Prototype, typename Function>
Prototype same(Function *function) {
    static_assert(std::is_same_v<Prototype, Function *>);
    return function;
}

const Override table[] = {
    OVERRIDE(glBindVertexArray, bindVertexArray),
    OVERRIDE(glDeleteVertexArrays, deleteVertexArrays),
    OVERRIDE(glGetBooleanv, getBooleanv),
    OVERRIDE(glGetFloatv, getFloatv),
    OVERRIDE(glGetInteger64v, getInteger64v),
    OVERRIDE(glGetIntegerv, getIntegerv),
    OVERRIDE(glGetShaderSource, getShaderSource),
    OVERRIDE(glGetShaderiv, getShaderiv),
    OVERRIDE(glGetString, getString),
    OVERRIDE(glGetStringi, getStringi),
    OVERRIDE(glShaderSource, shaderSource),
};

#undef OVERRIDE

} // namespace

void *findOverride(std::string_view name) {
    const auto row = std::ranges::find(table, name, &Override::name);
    return row == std::end(table) ? nullptr : row->function;
}
