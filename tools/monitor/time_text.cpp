#include "tools/monitor/time_text.h"

#include <chrono>
#include <cstdio>

std::string timeText(tm *(*split)(const time_t *, tm *), const char *format, time_t seconds) {
    tm parts{};
    split(&seconds, &parts);
    char text[32];
    return {text, strftime(text, sizeof text, format, &parts)};
}

std::string timeTextNow(tm *(*split)(const time_t *, tm *), const char *format) {
    using namespace std::chrono;
    const auto now = floor<milliseconds>(system_clock::now());
    char rest[8];
    snprintf(rest, sizeof rest, ".%03d", static_cast<int>(now.time_since_epoch().count() % 1000));
    return timeText(split, format, system_clock::to_time_t(now)) + rest;
}
