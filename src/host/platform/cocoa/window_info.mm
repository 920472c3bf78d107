#include "host/platform/cocoa/window_info.h"

#import "host/platform/cocoa/objects.h"

namespace host::platform::cocoa {

namespace {

NSRect frameOf(NSView *view) {
    return view ? [view frame] : NSZeroRect;
}

} // namespace

void viewSize(const View &view, int32_t *width, int32_t *height) {
    NSView *target = viewOf(view);
    if (!target) return;
    __block NSRect frame = NSZeroRect;
    if ([NSThread isMainThread]) {
        frame = frameOf(target);
    } else {
        dispatch_sync(dispatch_get_main_queue(), ^{
          frame = frameOf(target);
        });
    }
    if (width) *width = static_cast<int32_t>(frame.size.width);
    if (height) *height = static_cast<int32_t>(frame.size.height);
}

std::string viewTitle(const View &view) {
    @autoreleasepool {
        // Nil without a view, for a view without a window, and for a window without a title.
        const char *text = [[[viewOf(view) window] title] UTF8String];
        return text ? text : "";
    }
}

} // namespace host::platform::cocoa
