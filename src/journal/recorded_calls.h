// GL calls in the journal: a function wraps each that a back end returns, of any signature, checks the arguments, and
// queries errors afterwards.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "gl/function_table.h"
#include "journal/es_tables.h"

namespace journal {

// How the limit bounds the argument.
enum class Reach { upTo, below, unitBelow };

struct LimitRow {
    const char *function;
    size_t argument;
    Reach reach;
    uint32_t limit;
    const char *limitName;
    uint32_t target; // 0 for every
};

// One function of one back end under one name. Constant once it is returned.
struct RecordedCall {
    uint32_t number;
    const char *name;
    gl::Function function;
    const EsFunction *es; // null for a name that is not in OpenGL ES
    std::vector<const LimitRow *> limits;
    int formatArgument; // -1 without a compressed format
};

// The wrapper to call in place of the function, which records and calls it. The function itself if it cannot be
// wrapped: on machines other than x86-64, and after thousands of other functions. A null function is recorded as
// lacking and stays null. Any thread.
[[nodiscard]] gl::Function recorded(const char *name, gl::Function function);

} // namespace journal
