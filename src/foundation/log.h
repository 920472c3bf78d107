// The only output for diagnostics: a prefixed line on a standard stream, and the same text to a listener.
// Any thread may log at any time.
#pragma once

#include <cstdarg>
#include <cstdint>
#include <memory>

// The values are the record types of the GUI link, so that a level travels there unchanged.
enum LogLevel : int32_t {
    LogInfo = 6,
    LogWarning = 7,
    LogError = 8,
};

// Receives each text that was printed, without its prefix. Must be callable from any thread.
using LogListener = void (*)(int32_t level, const char *text);

// Sets the listener; null removes it, which is the initial state.
void setLogListener(LogListener listener);

// Prints one line: warnings and information on standard output, errors on standard error. A "%" in format is not
// escaped. A level other than the three does nothing.
void logMessage(int32_t level, const char *format, ...) __attribute__((format(printf, 2, 3)));

// "(Info) ", "(Warning) ", "(Error) ", or the empty text for any other level.
[[nodiscard]] const char *levelPrefix(int32_t level);

// The formatted text. A text of exactly strlen(format) + 12 characters loses its last one.
[[nodiscard]] std::unique_ptr<char[]> formatVarArgs(const char *format, va_list arguments);
