#include "common/per_back_end/overrides.h"

#include <algorithm>
#include <iterator>

namespace {

struct Override {
    std::string_view name;
    void *function;
};

const Override table[] = {
#define OVERRIDE(name, function) {#name, reinterpret_cast<void *>(overrides::function)},
#include "data/overrides.def"
#undef OVERRIDE
};

} // namespace

void *findOverride(std::string_view name) {
    const auto row = std::ranges::find(table, name, &Override::name);
    return row == std::end(table) ? nullptr : row->function;
}
