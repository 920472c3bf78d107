#include "programs/variable_types.h"

#include <algorithm>
#include <iterator>

namespace {

struct Row {
    GLenum type;
    VariableType is;
};
constexpr Row rows[] = {
#define VARIABLE_TYPE(type, columns, rows) {type, {columns, rows}},
#include "programs/variable_types.def"
#undef VARIABLE_TYPE
};

} // namespace

VariableType variableType(GLenum type) {
    const auto row = std::ranges::find(rows, type, &Row::type);
    return row == std::end(rows) ? VariableType{1, 0} : row->is;
}
