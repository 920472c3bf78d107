// X errors as values. Xlib asks a display's own reply handlers before the error handler of the process, so what they
// take reaches neither the application's handler nor Xlib's default one, which would end the process. The application's
// displays keep all of their errors. For servers that go away Xlib has one handler a process alone: ours stands before
// the application's and passes on what is not of our connections.
#pragma once

#include <atomic>
#include <memory>

#include <X11/Xlib.h>

namespace host::platform::x11 {

// From now on, for good: every error of this display is dropped, and a server that goes away sets isLost. Both
// arguments must live as long as the process.
void keepErrorsFromProcess(Display *display, std::atomic<bool> &isLost);

// Puts our handler for lost servers before one that the application has set since. Any thread.
void keepLossesFromProcess();

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
