// The time as the pages receive it.
#pragma once

#include <chrono>
#include <cstdint>

// Since 1970.
[[nodiscard]] inline int64_t millisecondsNow() {
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}
