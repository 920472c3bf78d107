// X errors as values. Xlib asks a display's own reply handlers before the error handler of the process, so what they
// take reaches neither the application's handler nor Xlib's default one, which would end the process. The process's
// handlers are never touched, and the application's displays keep all of their errors.
#pragma once

#include <atomic>
#include <memory>

#include <X11/Xlib.h>

namespace host::platform::x11 {

// From now on, for good: every error of this display is dropped. A server that goes away sets isLost where the
// application's handler for that returns; Xlib's default one ends the process, as it does for any connection. Both
// arguments must live as long as the process.
void keepErrorsFromProcess(Display *display, std::atomic<bool> &isLost);

// Whether requests wait in the display's buffer.
[[nodiscard]] bool hasRequestsToSend(Display *display);

// Takes the errors of a display while it lives, and tells of them. Waits for the server when made, so that errors of
// earlier requests go where they belong. One at a time on a display, since the newest takes all.
class ErrorTrap {
public:
    // With a major opcode, errors of other requests are not meant.
    explicit ErrorTrap(Display *display, int majorOpcode = 0);
    ErrorTrap(const ErrorTrap &) = delete;
    ErrorTrap &operator=(const ErrorTrap &) = delete;
    ~ErrorTrap();

    // Waits for the server to have seen all requests so far.
    [[nodiscard]] bool sawError();

private:
    struct Record;
    Display *m_display;
    std::unique_ptr<Record> m_record;
};

} // namespace host::platform::x11
