// Time and user instructions of a body that repeats a call.
#pragma once

struct Cost {
    double nanoseconds;
    double instructions; // 0 where the machine does not count them
};

// Of one pass: the fastest of several runs of about two milliseconds, since whatever else the machine does only slows a
// run. settle: runs between them, outside the figure.
[[nodiscard]] Cost measure(void (*body)(long passes), void (*settle)());
