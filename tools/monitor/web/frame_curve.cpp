#include "tools/monitor/web/frame_curve.h"

#include <algorithm>

void FrameCurve::count(int64_t second) {
    m_start = std::min(m_start, second + 1);
    Second &entry = m_seconds[second % m_seconds.size()];
    if (entry.number != second) entry = {second, 0};
    ++entry.frames;
}

int64_t FrameCurve::first(int64_t since, int64_t now) const {
    return std::max({since, m_start, std::min(now, m_end) - length});
}

std::vector<uint32_t> FrameCurve::values(int64_t since, int64_t now) const {
    std::vector<uint32_t> values;
    for (int64_t second = first(since, now); second < std::min(now, m_end); ++second) {
        const Second &entry = m_seconds[second % m_seconds.size()];
        values.push_back(entry.number == second ? entry.frames : 0);
    }
    return values;
}
