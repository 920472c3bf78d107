// The number of frames that an application drew in each of the last seconds.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

class FrameCurve {
public:
    static constexpr int64_t length = 60; // seconds

    // second: of any monotonic clock.
    void count(int64_t second);
    // Called after the last frame, in an incomplete second.
    void end(int64_t second) { m_end = second; }

    // The first second of values().
    [[nodiscard]] int64_t first(int64_t since, int64_t now) const;
    // The values of the complete seconds from since on, before now. The second of the first frame is not complete.
    [[nodiscard]] std::vector<uint32_t> values(int64_t since, int64_t now) const;

private:
    struct Second {
        int64_t number = -1;
        uint32_t frames = 0;
    };

    static constexpr int64_t nobody = INT64_MAX / 2;
    int64_t m_start = nobody;
    int64_t m_end = nobody;
    std::array<Second, length + 1> m_seconds{}; // and the current one
};
