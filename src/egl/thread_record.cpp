#include "egl/thread_record.h"

#include <climits>
#include <pthread.h>

#include "egl/context.h"
#include "egl/desktop_clients.h"
#include "gl/function_table.h"

namespace egl {

constinit thread_local ThreadRecord threadRecord;

namespace {

// pthread_key_create's exit handlers run in rounds for as long as values are set again. An application's handler may
// release a context, so ours sets its value again and acts in the last round only.
void endThread(void *value);

pthread_key_t exitKey() {
    static const pthread_key_t key = [] {
        pthread_key_t made{};
        pthread_key_create(&made, endThread);
        return made;
    }();
    return key;
}

// Stores the number of the round as the key's value.
void setRound(uintptr_t round) {
    pthread_setspecific(exitKey(), reinterpret_cast<void *>(round));
}

void endThread(void *value) {
    const auto round = reinterpret_cast<uintptr_t>(value);
    if (round < PTHREAD_DESTRUCTOR_ITERATIONS) return setRound(round + 1);
    // Drops the references only; bindings, flags and deferred destructions are unchanged.
    const std::unique_ptr<ThreadHold> dropped(threadRecord.hold);
    threadRecord = {.error = threadRecord.error, .ended = true};
    gl::currentFunctions = &gl::functionsWithoutContext;
}

// The requested version decides which library a context uses.
zvThread backEndView(const Context *context) {
    if (!context) return {};
    const zvEsContext esContext = context->esContext;
    return context->attribs.requestedMajor == 1 ? zvThread{esContext, nullptr} : zvThread{nullptr, esContext};
}

} // namespace

std::shared_ptr<Context> currentContext() {
    return threadRecord.current ? threadRecord.hold->current : nullptr;
}

bool prepareThread() {
    if (threadRecord.hold) return true;
    if (threadRecord.ended) return false;
    threadRecord.hold = new ThreadHold;
    setRound(1);
    return true;
}

void setCurrentContext(std::shared_ptr<Context> context, Display *display) {
    threadRecord.current = context.get();
    threadRecord.currentDisplay = display;
    threadRecord.currentEs = context && !context->isDesktop() ? context.get() : nullptr;
    threadRecord.backEnd = backEndView(threadRecord.currentEs);
    gl::currentFunctions = context ? &context->functions : &gl::functionsWithoutContext;
    // Swapped, so that the old context is destroyed after the record refers to the new one.
    if (threadRecord.hold) threadRecord.hold->current.swap(context);
}

void setError(EGLint code) {
    if (threadRecord.error == EGL_SUCCESS || desktop_clients::isOn()) threadRecord.error = code;
}

} // namespace egl
