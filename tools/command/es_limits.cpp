#include "tools/command/es_limits.h"

#include <algorithm>
#include <stdexcept>

namespace {

constexpr EsLimit limits[] = {
#define ES_LIMIT(name, kind, count) {name, EsLimit::kind, count},
#include "tools/command/data/es_limits.def"
#undef ES_LIMIT
};

} // namespace

std::span<const EsLimit> esLimits() {
    return limits;
}

const journal::EsEnumerant &enumerantOf(const EsLimit &limit) {
    const auto all = journal::esEnumerants();
    const auto found = std::ranges::find(all, std::string_view(limit.name),
                                         [](const auto &row) { return std::string_view(row.name); });
    if (found == all.end()) throw std::logic_error(std::string("no enumerant ") + limit.name);
    return *found;
}

std::string elementOf(const EsLimit &limit) {
    std::string element = limit.name + 3; // after "GL_"
    for (const std::string_view suffix : {"_EXT", "_KHR", "_OES"})
        if (element.ends_with(suffix)) element.resize(element.size() - suffix.size());
    for (char &letter : element)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return element;
}
