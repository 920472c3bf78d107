// GL calls as the journal sees them: a function stands before each that a back end answers, whatever its signature,
// looks at the arguments, and asks for errors afterwards.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "gl/function_table.h"
#include "journal/es_tables.h"

namespace journal {

// How a bound reaches.
enum class Reach { upTo, below, unitBelow };

struct LimitRow {
    const char *function;
    size_t argument;
    Reach reach;
    uint32_t limit;
    const char *limitName;
    uint32_t target; // 0 for every
};

// One function of one back end under one name. Constant once it is handed out.
struct RecordedCall {
    uint32_t number;
    const char *name;
    gl::Function function;
    const EsFunction *es; // null for a name that OpenGL ES has nowhere
    std::vector<const LimitRow *> limits;
    int formatArgument; // -1 where no compressed format stands
};

// What to call in place of the function: one that records and calls it. The function itself where nothing can be put
// before it: on other machines than x86-64, and for those that come after thousands of others. A null function is noted
// as lacking and stays null. Any thread.
[[nodiscard]] gl::Function recorded(const char *name, gl::Function function);

} // namespace journal
