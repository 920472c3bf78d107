// Times as the monitor writes them.
#pragma once

#include <ctime>
#include <string>

// split: gmtime_r or localtime_r. format: of strftime, for a text of up to 31 characters.
[[nodiscard]] std::string timeText(tm *(*split)(const time_t *, tm *), const char *format, time_t seconds);
// The same for the current time, followed by milliseconds: "18:00:00.000".
[[nodiscard]] std::string timeTextNow(tm *(*split)(const time_t *, tm *), const char *format);
