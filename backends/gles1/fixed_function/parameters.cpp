#include "fixed_function/parameters.h"

#include "context/es_context.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace {

constexpr Parameter parameters[] = {
#define PARAMETER(family, name, count, kind) {Family::family, name, count, Kind::kind},
#include "fixed_function/parameters.def"
#undef PARAMETER
};

constexpr State unsortedStates[] = {
#define STATE(name, count, kind) {name, count, Kind::kind},
#include "fixed_function/state.def"
#undef STATE
};

constexpr auto states = [] {
    auto sorted = std::to_array(unsortedStates);
    std::ranges::sort(sorted, {}, &State::name);
    return sorted;
}();
static_assert(std::ranges::adjacent_find(states, {}, &State::name) == states.end());

} // namespace

const Parameter *findParameter(Family family, GLenum name) {
    const auto isWanted = [&](const Parameter &row) { return row.family == family && row.name == name; };
    const auto row = std::ranges::find_if(parameters, isWanted);
    return row == std::end(parameters) ? nullptr : row;
}

const State *findState(GLenum name) {
    const auto row = std::ranges::lower_bound(states, name, {}, &State::name);
    return row == states.end() || row->name != name ? nullptr : row;
}

const Parameter *checkScalar(Family family, GLenum name) {
    const Parameter *const parameter = findParameter(family, name);
    if (parameter && parameter->count == 1) return parameter;
    raise(GL_INVALID_ENUM);
    return nullptr;
}

const Parameter *checkVector(Family family, GLenum name) {
    const Parameter *const parameter = findParameter(family, name);
    if (!parameter) raise(GL_INVALID_ENUM);
    return parameter;
}
