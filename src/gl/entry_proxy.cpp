#include "gl/entry_proxy.h"

#include <atomic>
#include <mutex>
#include <string>

#include "egl/context.h"
#include "foundation/log.h"

namespace gl {

namespace {

// A question that a thread has put to a back end, on the stack of that thread.
struct OpenQuestion {
    const GLEntryProxy *proxy;
    const egl::Context *context;
    const egl::ThreadRecord *asker;
    OpenQuestion *next;
};

// Guards every store into an answer map and the list of open questions. Not held while a back end answers, since it
// may call entries of its own meanwhile.
constinit std::mutex answersMutex;
constinit OpenQuestion *openQuestions = nullptr;
// Counts the answers, for those who wait for another thread's.
constinit std::atomic<uint32_t> answerCount = 0;

struct Answer {
    Function function;
    bool isNew; // this call has asked
};

// A thread that asks again while its own question is open goes on, or it would wait for itself.
bool isAskedElsewhere(const GLEntryProxy &proxy, const egl::Context &context) {
    for (const OpenQuestion *question = openQuestions; question; question = question->next)
        if (question->proxy == &proxy && question->context == &context && question->asker != &egl::threadRecord)
            return true;
    return false;
}

void removeQuestion(const OpenQuestion &closed) {
    OpenQuestion **link = &openQuestions;
    while (*link != &closed)
        link = &(*link)->next;
    *link = closed.next;
}

Answer askOnce(GLEntryProxy &proxy, egl::Context &context) {
    std::unique_lock lock(answersMutex);
    // Two threads that bind one context at the same moment can both have it current.
    while (isAskedElsewhere(proxy, context)) {
        const uint32_t seen = answerCount.load(std::memory_order_relaxed);
        lock.unlock();
        answerCount.wait(seen, std::memory_order_relaxed);
        lock.lock();
    }
    if (const auto stored = proxy.resolved.answerOf(&context)) return {*stored, false};

    OpenQuestion question{&proxy, &context, &egl::threadRecord, openQuestions};
    openQuestions = &question;
    lock.unlock();
    const auto function = reinterpret_cast<Function>(context.getExtProcAddress(proxy.name));
    lock.lock();

    removeQuestion(question);
    proxy.resolved.store(&context, function);
    answerCount.fetch_add(1, std::memory_order_relaxed);
    answerCount.notify_all();
    return {function, true};
}

// The text is put together first: the log cuts the last character of some texts with a longer format.
void logError(const std::string &text) {
    logMessage(LogError, "%s", text.c_str());
}

} // namespace

Function resolveEntry(GLEntryProxy &proxy) {
    egl::Context *const context = egl::threadRecord.current;
    if (!context) {
        logError(std::string("Attempted to call '") + proxy.name + "', but there is no current context.");
        return nullptr;
    }
    if (const auto stored = proxy.resolved.answerOf(context)) return *stored;

    const Answer answer = askOnce(proxy, *context);
    if (!answer.function && answer.isNew)
        logError(std::string("Attempted to use an unsupported extension function: '") + proxy.name + "'");
    return answer.function;
}

} // namespace gl
