// X errors as values. Xlib calls a display's own reply handlers before the error handler of the process, so errors that
// they catch reach neither the application's handler nor Xlib's default one, which would end the process. The
// application's displays keep all their errors. Xlib has one handler per process for lost servers: ours is installed
// before the application's and calls that for servers of other connections.
#pragma once

#include <atomic>
#include <memory>

#include <X11/Xlib.h>

namespace host::platform::x11 {

// Drops every error of this display from now on, and sets isLost when the server is lost. Both arguments must live as
// long as the process.
void keepErrorsFromProcess(Display *display, std::atomic<bool> &isLost);

// Installs our handler for lost servers before one that the application has set since. Any thread.
void keepLossesFromProcess();

// Whether requests wait in the display's buffer.
[[nodiscard]] bool hasRequestsToSend(Display *display);

// Catches the errors of a display while it lives, and reports them. Syncs with the server when made, so that errors of
// earlier requests reach their own handlers. One at a time on a display, since the newest catches all.
class ErrorTrap {
public:
    // With a major opcode, errors of other requests are ignored.
    explicit ErrorTrap(Display *display, int majorOpcode = 0);
    ErrorTrap(const ErrorTrap &) = delete;
    ErrorTrap &operator=(const ErrorTrap &) = delete;
    ~ErrorTrap();

    // Waits until the server has processed all requests so far.
    [[nodiscard]] bool sawError();

private:
    struct Record;
    Display *m_display;
    std::unique_ptr<Record> m_record;
};

} // namespace host::platform::x11
