#include "host/platform/cocoa/swap_control.h"

#import "host/platform/cocoa/objects.h"

namespace host::platform::cocoa {

void setSwapInterval(ContextContainer *container, int32_t interval) {
    @autoreleasepool {
        [[objectOf(container) m_context] setValues:&interval forParameter:NSOpenGLCPSwapInterval];
    }
}

} // namespace host::platform::cocoa
