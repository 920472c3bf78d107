#import <Foundation/Foundation.h>

#include <map>
#include <sstream>
#include <utility>

#include "host/platform/recording/appkit.h"

// The threads of the cases never run concurrently.
std::string recorded_appkit::messages, recorded_appkit::failingClass;

namespace {

using namespace recorded_appkit;

std::map<std::string, int> counts;
thread_local id currentContext = nil;

std::string text(id object);

template <typename Number>
requires std::is_arithmetic_v<Number> std::string text(Number value) {
    return std::to_string(value);
}

template <typename... Words>
void note(id receiver, const std::string &message, Words... words) {
    messages += text(receiver) + " " + message;
    ((messages += " " + text(words)), ...);
    messages += "\n";
}

} // namespace

// Numbers its objects by class, records their deallocation, and fails to initialise if a case requests it.
@interface Recorded : NSObject {
@public
    int m_number;
}
@end

@implementation Recorded
- (id)init {
    const std::string name = class_getName([self class]);
    m_number = ++counts[name];
    if (failingClass != name) return self;
    failingClass.clear();
    return nil;
}
- (void)dealloc {
    note(self, "dealloc");
    [super dealloc];
}
@end

namespace {

std::string text(id object) {
    if (!object) return "nil";
    return class_getName([object class]) + std::to_string(static_cast<Recorded *>(object)->m_number);
}

} // namespace

@interface NSOpenGLPixelFormat : Recorded {
    std::map<uint32_t, int32_t> *m_values;
}
@end

@implementation NSOpenGLPixelFormat
- (id)initWithAttributes:(const uint32_t *)list {
    if (!(self = [super init])) return nil;
    m_values = new std::map<uint32_t, int32_t>;
    std::ostringstream words;
    for (; *list; ++list) {
        words << *list << " ";
        const uint32_t attribute = *list;
        if (attribute != 5) words << *++list << " ";
        (*m_values)[attribute] = attribute == 5 ? 1 : static_cast<int32_t>(*list);
    }
    note(self, "init " + words.str() + "0");
    return self;
}
- (void)getValues:(int32_t *)value forAttribute:(uint32_t)attribute forVirtualScreen:(int32_t)screen {
    note(self, "getValues", attribute, screen);
    if (m_values->count(attribute)) *value = (*m_values)[attribute];
}
- (void)dealloc {
    delete m_values;
    [super dealloc];
}
@end

@interface NSOpenGLContext : Recorded {
    id m_view;
}
@end

@implementation NSOpenGLContext
// Autoreleased, as the platform's getters may do.
+ (id)currentContext {
    return [[currentContext retain] autorelease];
}
+ (void)clearCurrentContext {
    currentContext = nil;
    messages += "NSOpenGLContext clearCurrentContext\n";
}
- (id)initWithFormat:(id)format shareContext:(id)share {
    if ((self = [super init])) note(self, "init", format, share);
    return self;
}
- (void)makeCurrentContext {
    note(self, "makeCurrentContext");
    currentContext = self;
}
- (void)setView:(id)view {
    note(self, "setView", view);
    m_view = view;
}
- (id)view {
    return [[m_view retain] autorelease];
}
- (void)update {
    note(self, "update");
}
- (void)flushBuffer {
    note(self, "flushBuffer");
}
- (void)setValues:(const int32_t *)values forParameter:(uint32_t)parameter {
    note(self, "setValues", *values, parameter);
}
- (void)setPixelBuffer:(id)buffer
             cubeMapFace:(uint32_t)face
             mipMapLevel:(int32_t)level
    currentVirtualScreen:(int32_t)screen {
    note(self, "setPixelBuffer", buffer, face, level, screen);
    m_view = nil;
}
- (void)dealloc {
    if (currentContext == self) currentContext = nil;
    [super dealloc];
}
@end

@interface NSOpenGLPixelBuffer : Recorded {
    int32_t pixelsWide, pixelsHigh;
}
@property(nonatomic) int32_t pixelsWide, pixelsHigh;
@end

@implementation NSOpenGLPixelBuffer
@synthesize pixelsWide, pixelsHigh;
- (id)initWithTextureTarget:(uint32_t)target
      textureInternalFormat:(uint32_t)format
      textureMaxMipMapLevel:(int32_t)level
                 pixelsWide:(int32_t)width
                 pixelsHigh:(int32_t)height {
    if (!(self = [super init])) return nil;
    pixelsWide = width;
    pixelsHigh = height;
    note(self, "init", target, format, level, width, height);
    return self;
}
@end

@interface NSWindow : Recorded {
    NSString *title;
}
@property(nonatomic, copy) NSString *title;
@end

@implementation NSWindow
@synthesize title;
@end

@interface NSView : Recorded {
    NSWindow *window;
    NSRect m_frame;
}
@property(nonatomic, retain) NSWindow *window;
@property(nonatomic) NSRect frame;
@end

@implementation NSView
@synthesize window, frame = m_frame;
- (NSRect)frame {
    note(self, "frame");
    return m_frame;
}
@end

NSString *NSViewFrameDidChangeNotification = @"NSViewFrameDidChangeNotification";

extern "C" struct dispatch_queue_s *dispatch_get_main_queue() {
    return nullptr; // stands for the main queue, the only one
}

extern "C" void dispatch_sync(struct dispatch_queue_s *, void (^block)(void)) {
    messages += "dispatch_sync begins\n";
    block();
    messages += "dispatch_sync ends\n";
}

namespace recorded_appkit {

using host::platform::View;

void restart() {
    messages.clear();
    counts.clear();
}

unsigned retainCount(const void *object) {
    return static_cast<unsigned>([reinterpret_cast<id>(const_cast<void *>(object)) retainCount]);
}

View makeView(double width, double height, const char *title, Place place) {
    NSView *view = [[NSView alloc] init];
    view.frame = NSMakeRect(0, 0, width, height);
    if (place == Place::inWindow) view.window = [[NSWindow alloc] init];
    if (title) view.window.title = [[NSString alloc] initWithUTF8String:title];
    return {0, reinterpret_cast<uint64_t>(view)};
}

void setFrame(const View &view, double width, double height) {
    @autoreleasepool {
        NSView *changed = reinterpret_cast<NSView *>(view.window);
        changed.frame = NSMakeRect(0, 0, width, height);
        [[NSNotificationCenter defaultCenter] postNotificationName:NSViewFrameDidChangeNotification object:changed];
    }
}

View makeOther() {
    return {0, reinterpret_cast<uint64_t>([[Recorded alloc] init])};
}

const void *makeForeignCurrent() {
    return currentContext = [[NSOpenGLContext alloc] init];
}

const void *current() {
    return currentContext;
}

} // namespace recorded_appkit
