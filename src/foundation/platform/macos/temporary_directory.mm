#import <Foundation/Foundation.h>

#include "foundation/paths.h"

// Ends in a slash, as the platform defines. May run on a thread without an autorelease pool.
std::string getTemporaryDirectory() {
    @autoreleasepool {
        const char *path = [NSTemporaryDirectory() UTF8String];
        return path ? path : "";
    }
}
