#import <Foundation/Foundation.h>

#include "foundation/paths.h"

// Ends in a slash by the platform's rule. May run on a thread without a pool of its own.
std::string getTemporaryDirectory() {
    @autoreleasepool {
        const char *path = [NSTemporaryDirectory() UTF8String];
        return path ? path : "";
    }
}
