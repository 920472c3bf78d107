// Declarations that host/platform/cocoa/ uses from macOS' headers and GNUstep's lack, with macOS' types.
#pragma once

#import <Foundation/Foundation.h>

// GNUstep passes context parameters as longs, macOS as 32-bit integers.
#define setValues setLongValues
#import <AppKit/NSOpenGL.h>
#undef setValues

#import <Cocoa/Cocoa.h>

constexpr auto NSOpenGLPFAOpenGLProfile = static_cast<NSOpenGLPixelFormatAttribute>(99);
enum { NSOpenGLProfileVersionLegacy = 0x1000, NSOpenGLProfileVersion3_2Core = 0x3200 };

@interface NSOpenGLPixelBuffer : NSObject
- (id)initWithTextureTarget:(uint32_t)target
      textureInternalFormat:(uint32_t)format
      textureMaxMipMapLevel:(int32_t)maxLevel
                 pixelsWide:(int32_t)width
                 pixelsHigh:(int32_t)height;
- (int32_t)pixelsWide;
- (int32_t)pixelsHigh;
@end

@interface NSOpenGLContext (MacOS)
- (void)setValues:(const int32_t *)values forParameter:(NSOpenGLContextParameter)parameter;
- (void)setPixelBuffer:(NSOpenGLPixelBuffer *)buffer
             cubeMapFace:(uint32_t)face
             mipMapLevel:(int32_t)level
    currentVirtualScreen:(int32_t)screen;
@end

typedef struct dispatch_queue_s *dispatch_queue_t;
extern "C" dispatch_queue_t dispatch_get_main_queue(void);
extern "C" void dispatch_sync(dispatch_queue_t queue, void (^block)(void));
