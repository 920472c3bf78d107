// The parts of an implementation, beyond its operations, that the table of the operations list requires: windows and
// contexts of an application, and a host that fails. Each implementation has its own.
#pragma once

#include <cstdint>
#include <memory>

#include "host/platform/operations.h"

struct Release {
    void operator()(host::platform::PixelFormat *format) const {
        host::platform::operations.releasePixelFormat(format);
    }
    void operator()(host::platform::ContextContainer *container) const {
        host::platform::operations.releaseContext(container);
    }
    void operator()(host::platform::PixelBuffer *buffer) const {
        host::platform::operations.releasePixelBuffer(buffer);
    }
};
using Format = std::unique_ptr<host::platform::PixelFormat, Release>;
using Context = std::unique_ptr<host::platform::ContextContainer, Release>;
using Buffer = std::unique_ptr<host::platform::PixelBuffer, Release>;

// Implementations; a row of the table may omit some.
enum : unsigned { onRecording = 1, onX11 = 2, onCocoa = 4, everywhere = 7 };

class OperationsHost {
public:
    virtual ~OperationsHost() = default;
    virtual unsigned implementation() const = 0;
    // Null for no title, which a window system may treat as an empty one.
    virtual host::platform::View makeView(int width, int height, const char *title) = 0;
    virtual void resizeView(const host::platform::View &view, int width, int height) = 0;
    // A handle that is not a view, or no longer one.
    virtual host::platform::View badView() = 0;
    virtual void makeForeignCurrent() = 0;
    virtual bool isForeignCurrent() = 0;
    // The next call of createPixelFormat, createContext or createPixelBuffer fails.
    virtual void refuseNext(const char *operation) = 0;
};

[[nodiscard]] std::unique_ptr<OperationsHost> makeOperationsHost();
