// Writes a line to the recording platform's log, if the process has one.
#pragma once

#include <cstdarg>
#include <cstdio>

extern "C" void recordingNote(const char *line) __attribute__((weak));

__attribute__((format(printf, 1, 2))) inline void note(const char *format, ...) {
    char line[256];
    va_list arguments;
    va_start(arguments, format);
    vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    if (recordingNote) recordingNote(line);
}
