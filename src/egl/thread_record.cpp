#include "egl/thread_record.h"

#include "egl/context.h"
#include "gl/function_table.h"

namespace egl {

constinit thread_local ThreadRecord threadRecord;

namespace {

// Ends with its thread: drops the reference, and leaves binding, flags and deferred destruction as they are.
struct CurrentOwner {
    std::shared_ptr<Context> context;

    ~CurrentOwner() {
        threadRecord.current = nullptr;
        threadRecord.backEnd = {};
        gl::currentFunctions = &gl::functionsWithoutContext;
        threadRecord.ended = true;
    }
};

thread_local CurrentOwner currentOwner;

// The library of a context is settled by the version that was asked for.
zvThread backEndView(const Context *context) {
    if (!context) return {};
    const zvEsContext esContext = context->esContext;
    return context->attribs.requestedMajor == 1 ? zvThread{esContext, nullptr} : zvThread{nullptr, esContext};
}

} // namespace

std::shared_ptr<Context> currentContext() {
    return threadRecord.current ? threadRecord.current->shared_from_this() : nullptr;
}

void setCurrentContext(std::shared_ptr<Context> context, Display *display) {
    if (threadRecord.ended) return;
    threadRecord.current = context.get();
    threadRecord.backEnd = backEndView(context.get());
    gl::currentFunctions = context ? &context->functions : &gl::functionsWithoutContext;
    threadRecord.currentDisplay = display;
    // Swapped, so that the old context goes only after the record names the new one.
    currentOwner.context.swap(context);
}

void setError(EGLint code) {
    if (threadRecord.error == EGL_SUCCESS) threadRecord.error = code;
}

} // namespace egl
