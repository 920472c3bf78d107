#import <Foundation/Foundation.h>

#include <condition_variable>
#include <map>
#include <mutex>
#include <sstream>
#include <utility>

#include "host/cocoa/platform_log.h"

namespace {

struct State {
    std::mutex mutex;
    std::condition_variable changed;
    std::string messages;
    std::string failingClass;
    std::map<std::string, int> counts;
    void (^block)(void) = nil; // what waits on the main queue
};

State &state() {
    static auto *instance = new State;
    return *instance;
}

std::string text(id object);

template <typename Number>
requires std::is_arithmetic_v<Number> std::string text(Number value) {
    return std::to_string(value);
}

template <typename... Words>
void note(id receiver, const char *message, Words... words) {
    const std::lock_guard lock(state().mutex);
    state().messages += text(receiver) + " " + message;
    ((state().messages += " " + text(words)), ...);
    state().messages += "\n";
}

thread_local id currentContext = nil;

} // namespace

// Numbers its objects by class, notes when they go, and refuses to be initialised when the script says so.
@interface Recorded : NSObject {
@public
    int m_number;
}
@end

@implementation Recorded
- (id)init {
    const std::string name = class_getName([self class]);
    const std::lock_guard lock(state().mutex);
    m_number = ++state().counts[name];
    if (state().failingClass != name) return self;
    state().failingClass.clear();
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
    note(self, ("init " + words.str() + "0").c_str());
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
// Handed out in a pool, as getters may.
+ (id)currentContext {
    return [[currentContext retain] autorelease];
}
+ (void)clearCurrentContext {
    currentContext = nil;
    const std::lock_guard lock(state().mutex);
    state().messages += "NSOpenGLContext clearCurrentContext\n";
}
- (id)initWithFormat:(id)format shareContext:(id)share {
    if (!(self = [super init])) return nil;
    note(self, "init", format, share);
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
    int32_t m_width, m_height;
}
@end

@implementation NSOpenGLPixelBuffer
- (id)initWithTextureTarget:(uint32_t)target
      textureInternalFormat:(uint32_t)format
      textureMaxMipMapLevel:(int32_t)level
                 pixelsWide:(int32_t)width
                 pixelsHigh:(int32_t)height {
    if (!(self = [super init])) return nil;
    m_width = width;
    m_height = height;
    note(self, "init", target, format, level, width, height);
    return self;
}
- (int32_t)pixelsWide {
    return m_width;
}
- (int32_t)pixelsHigh {
    return m_height;
}
@end

@interface NSWindow : Recorded {
@public
    NSString *m_title;
}
@end

@implementation NSWindow
- (NSString *)title {
    return m_title;
}
@end

@interface NSView : Recorded {
@public
    NSWindow *m_window;
    NSRect m_frame;
}
@end

@implementation NSView
- (NSWindow *)window {
    return m_window;
}
- (NSRect)frame {
    note(self, [NSThread isMainThread] ? "frame on the main thread" : "frame elsewhere");
    return m_frame;
}
@end

NSString *NSViewFrameDidChangeNotification = @"NSViewFrameDidChangeNotification";

extern "C" struct dispatch_queue_s *dispatch_get_main_queue() {
    return nullptr; // the only queue there is
}

extern "C" void dispatch_sync(struct dispatch_queue_s *, void (^block)(void)) {
    std::unique_lock lock(state().mutex);
    state().messages += [NSThread isMainThread] ? "dispatch_sync would wait for itself\n" : "dispatch_sync\n";
    state().block = block;
    state().changed.notify_all();
    state().changed.wait(lock, [] { return !state().block; });
}

namespace cocoa_tests {

using host::platform::View;

void restart() {
    const std::lock_guard lock(state().mutex);
    state().messages.clear();
    state().counts.clear();
}

std::string takeMessages() {
    const std::lock_guard lock(state().mutex);
    return std::exchange(state().messages, {});
}

void failNextInit(const char *className) {
    const std::lock_guard lock(state().mutex);
    state().failingClass = className;
}

unsigned retainCount(const void *object) {
    return static_cast<unsigned>([reinterpret_cast<id>(const_cast<void *>(object)) retainCount]);
}

View makeView(double width, double height, const char *title, Place place) {
    NSView *view = [[NSView alloc] init];
    view->m_frame = NSMakeRect(0, 0, width, height);
    if (place == Place::inWindow) view->m_window = [[NSWindow alloc] init];
    if (title) view->m_window->m_title = [[NSString alloc] initWithUTF8String:title];
    return {0, reinterpret_cast<uint64_t>(view)};
}

void setFrame(const View &view, double width, double height) {
    @autoreleasepool {
        NSView *changed = reinterpret_cast<NSView *>(view.window);
        changed->m_frame = NSMakeRect(0, 0, width, height);
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

void runMainQueueOnce() {
    std::unique_lock lock(state().mutex);
    state().changed.wait(lock, [] { return state().block; });
    auto block = state().block;
    lock.unlock();
    block();
    lock.lock();
    state().block = nil;
    state().changed.notify_all();
}

} // namespace cocoa_tests
