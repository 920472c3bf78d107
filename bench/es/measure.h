// Time and user instructions of a body that repeats a call.
#pragma once

struct Cost {
    double nanoseconds;
    double instructions; // 0 if the machine does not count them
};

// The cost of one pass: the fastest of several runs of about two milliseconds, since other load only slows a run.
// settle: called between the runs, outside the measured time.
[[nodiscard]] Cost measure(void (*body)(long passes), void (*settle)());
