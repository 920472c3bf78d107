#import "host/platform/cocoa/owned_contexts.h"

#include <map>
#include <mutex>

namespace host::platform::cocoa {

namespace {

struct Record {
    ContextContainer *container = nullptr;
    uint64_t display = 0;
};

struct OwnedContexts {
    std::mutex mutex;
    std::map<NSOpenGLContext *, Record> records;
};

// Never destroyed, since applications may draw in their exit handlers.
OwnedContexts &owned() {
    static auto *instance = new OwnedContexts;
    return *instance;
}

Record recordOf(NSOpenGLContext *context) {
    const std::lock_guard lock(owned().mutex);
    const auto found = owned().records.find(context);
    return found == owned().records.end() ? Record{} : found->second;
}

} // namespace

void addOwner(NSOpenGLContext *context, ContextContainer *container) {
    const std::lock_guard lock(owned().mutex);
    owned().records[context] = {container, 0};
}

void removeOwner(NSOpenGLContext *context) {
    const std::lock_guard lock(owned().mutex);
    owned().records.erase(context);
}

ContextContainer *ownerOf(NSOpenGLContext *context) {
    return recordOf(context).container;
}

void setDisplayOf(NSOpenGLContext *context, uint64_t display) {
    const std::lock_guard lock(owned().mutex);
    owned().records[context].display = display;
}

uint64_t displayOf(NSOpenGLContext *context) {
    return recordOf(context).display;
}

} // namespace host::platform::cocoa
