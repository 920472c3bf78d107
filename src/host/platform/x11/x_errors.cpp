#include "host/platform/x11/x_errors.h"

// Defines short macros; must be included last.
#include <X11/Xlibint.h>

namespace host::platform::x11 {

namespace {

Bool dropError(Display *, xReply *reply, char *, int, XPointer) {
    return reply->generic.type == X_Error;
}

void addHandler(Display *display, _XAsyncHandler *handler) {
    LockDisplay(display);
    handler->next = display->async_handlers;
    display->async_handlers = handler;
    UnlockDisplay(display);
}

void noteServerLost(Display *, void *isLost) {
    static_cast<std::atomic<bool> *>(isLost)->store(true);
}

// The application's handlers for lost servers, which ours precedes.
constinit std::atomic<XIOErrorHandler> oldestHandler = nullptr;
constinit std::atomic<XIOErrorHandler> newestHandler = nullptr;
constinit thread_local bool isPassingOn __attribute__((tls_model("initial-exec"))) = false;

// The handler of the process. Xlib calls it first and the display's own exit handler afterwards.
int takeOwnLosses(Display *display) {
    if (display->exit_handler == noteServerLost) return 0;
    // A handler that was set after ours may call ours.
    if (isPassingOn) return oldestHandler.load()(display);
    isPassingOn = true;
    const int result = newestHandler.load()(display);
    isPassingOn = false;
    return result;
}

} // namespace

// The handler runs with the display locked, in whichever thread reads the error.
struct ErrorTrap::Record {
    _XAsyncHandler handler{};
    int majorOpcode = 0;
    std::atomic<bool> hasError = false;

    static Bool take(Display *, xReply *reply, char *, int, XPointer data) {
        auto &record = *reinterpret_cast<Record *>(data);
        if (reply->generic.type != X_Error) return False;
        if (record.majorOpcode != 0 && record.majorOpcode != reply->error.majorCode) return False;
        record.hasError = true;
        return True;
    }
};

void keepErrorsFromProcess(Display *display, std::atomic<bool> &isLost) {
    addHandler(display, new _XAsyncHandler{.next = nullptr, .handler = dropError, .data = nullptr});
    XSetIOErrorExitHandler(display, noteServerLost, &isLost);
    keepLossesFromProcess();
}

void keepLossesFromProcess() {
    const XIOErrorHandler replaced = XSetIOErrorHandler(takeOwnLosses);
    if (replaced == takeOwnLosses) return;
    XIOErrorHandler none = nullptr;
    oldestHandler.compare_exchange_strong(none, replaced);
    newestHandler = replaced;
}

bool hasRequestsToSend(Display *display) {
    LockDisplay(display);
    const bool isWaiting = display->bufptr != display->buffer;
    UnlockDisplay(display);
    return isWaiting;
}

ErrorTrap::ErrorTrap(Display *display, int majorOpcode) : m_display(display), m_record(std::make_unique<Record>()) {
    // GLX generates errors itself, with the serial of the last request. Xlib would then discard the server's errors of
    // earlier requests.
    XSync(display, False);
    m_record->majorOpcode = majorOpcode;
    m_record->handler.handler = Record::take;
    m_record->handler.data = reinterpret_cast<XPointer>(m_record.get());
    addHandler(display, &m_record->handler);
}

ErrorTrap::~ErrorTrap() {
    LockDisplay(m_display);
    DeqAsyncHandler(m_display, &m_record->handler);
    UnlockDisplay(m_display);
}

bool ErrorTrap::sawError() {
    XSync(m_display, False);
    return m_record->hasError;
}

} // namespace host::platform::x11
