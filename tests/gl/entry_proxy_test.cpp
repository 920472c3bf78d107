// Contexts that are nothing but an address, and a back end that answers for them. Stands in for src/egl/context.cpp and
// thread_record.cpp.
#include "gl/entry_proxy.h"

#include <gmock/gmock.h>

#include <atomic>
#include <barrier>
#include <functional>
#include <mutex>
#include <thread>
#include <tuple>
#include <utility>

#include "egl/context.h"
#include "egl/thread_record.h"
#include "foundation/log.h"
#include "gl/entry_tables.h"

using gl::Entry;
using gl::GLEntryProxy;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

// Set before there are several threads; called on the asking one.
std::function<void *(const egl::Context *, const std::string &name)> backEnd = [](auto...) { return nullptr; };
std::atomic<size_t> questions = 0; // to the back end
std::mutex errorMutex;
std::vector<std::string> errors; // that were logged

alignas(egl::Context) std::byte storage[64][sizeof(egl::Context)];

egl::Context *contextAt(size_t index) {
    return reinterpret_cast<egl::Context *>(storage[index]);
}

template <typename Type>
void *address(Type *function) {
    return reinterpret_cast<void *>(function);
}

int answerOne() {
    return 1;
}
int answerTwo() {
    return 2;
}

class EntryProxy : public testing::Test {
protected:
    EntryProxy() {
        setLogListener([](int32_t, const char *text) {
            const std::lock_guard lock(errorMutex);
            errors.emplace_back(text);
        });
    }
};

} // namespace

namespace egl {

constinit thread_local ThreadRecord threadRecord;

void *Context::getExtProcAddress(const char *name) {
    ++questions;
    return backEnd(this, name);
}

} // namespace egl

TEST_F(EntryProxy, OnePointerReachesTheFunctionOfEachContext) {
    static constinit GLEntryProxy record{"glName"};
    const auto entry = &Entry<record, int()>::call; // taken before any context is there
    backEnd = [](const egl::Context *context, const std::string &name) {
        EXPECT_EQ(name, "glName");
        return address(context == contextAt(0) ? answerOne : answerTwo);
    };
    for (const size_t context : {0, 1, 0, 1}) {
        egl::threadRecord.current = contextAt(context);
        EXPECT_EQ(entry(), context ? 2 : 1);
    }
    EXPECT_EQ(questions, 2u);
}

// Also what a new context at the address of a dead one gets.
TEST_F(EntryProxy, UnknownNameIsAskedAndLoggedOnceForEachContext) {
    static constinit GLEntryProxy record{"glUnknown"};
    const auto line = "Attempted to use an unsupported extension function: 'glUnknown'";
    for (const size_t context : {0, 1}) {
        egl::threadRecord.current = contextAt(context);
        backEnd = [](auto...) { return nullptr; };
        EXPECT_EQ((Entry<record, int()>::call()), 0);
        backEnd = [](auto...) { return address(answerOne); };
        EXPECT_EQ((Entry<record, int()>::call()), 0);
        EXPECT_THAT(std::exchange(errors, {}), ElementsAre(line));
        EXPECT_EQ(questions, context + 1);
    }
}

// Narrow, wide and floating arguments, and more than fit into registers; the first call and the resolved one differ.
TEST_F(EntryProxy, ArgumentsAndResultPassUnchanged) {
    using Mixed = GLint64(GLubyte, GLfloat, GLint64, GLshort, GLfloat, void *, GLint, GLint, GLint, const GLint *);
    static constinit GLEntryProxy record{"glMixed"};
    static GLint object;
    static const std::tuple arguments(GLubyte{255}, 0.5f, GLint64{-1} << 40, GLshort{-7}, -2.25f, &object, 1, 2, 3,
                                      &object + 1);
    using Received =
        std::tuple<GLubyte, GLfloat, GLint64, GLshort, GLfloat, void *, GLint, GLint, GLint, const GLint *>;
    backEnd = [](auto...) {
        return address<Mixed>([](auto... received) { return GLint64{Received(received...) == arguments} << 50; });
    };
    egl::threadRecord.current = contextAt(0);
    for (const int call : {1, 2})
        EXPECT_EQ(std::apply(Entry<record, Mixed>::call, arguments), 1LL << 50) << "call " << call;
}

TEST_F(EntryProxy, BackEndMayCallEntriesWhileItAnswers) {
    static constinit GLEntryProxy outer{"glOuter"};
    static constinit GLEntryProxy inner{"glInner"};
    static bool isNested = false;
    backEnd = [](const egl::Context *, const std::string &name) {
        if (name == "glInner") return address(answerTwo);
        if (!std::exchange(isNested, true)) {
            EXPECT_EQ((Entry<inner, int()>::call()), 2);
            EXPECT_EQ((Entry<outer, int()>::call()), 1);
        }
        return address(answerOne);
    };
    egl::threadRecord.current = contextAt(0);
    EXPECT_EQ((Entry<outer, int()>::call()), 1);
}

// Two threads at a time resolve for one context, while two others call with contexts that are resolved or not.
TEST_F(EntryProxy, ThreadsAskOnceForEachContextWhileOthersCall) {
    static constinit GLEntryProxy record{"glShared"};
    backEnd = [](const egl::Context *context, const std::string &) {
        std::this_thread::yield();
        return context < contextAt(32) ? address(answerOne) : nullptr;
    };
    std::barrier<> pairs[] = {std::barrier<>(2), std::barrier<>(2)};
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&, thread] {
            for (int index = 0; index < 64; ++index) {
                const int own = (index + thread / 2 * 16) % 64;
                egl::threadRecord.current = contextAt(own);
                pairs[thread / 2].arrive_and_wait();
                for (int call = 0; call < 20; ++call)
                    EXPECT_EQ((Entry<record, int()>::call()), own < 32 ? 1 : 0);
            }
        });
    threads.clear();
    EXPECT_EQ(questions, 64u);
    const std::string line = "Attempted to use an unsupported extension function: 'glShared'";
    EXPECT_THAT(errors, AllOf(SizeIs(32), Each(line)));
}

// Whatever a back end returns there, an integer or a pointer, comes through whole.
TEST_F(EntryProxy, DebugEntriesHandBackAWholeRegister) {
    const auto toggle = reinterpret_cast<GLuint64 (*)(GLuint)>(gl::extensionTable[208].function);
    EXPECT_EQ(toggle(1), 0u);
    EXPECT_THAT(std::exchange(errors, {}),
                ElementsAre("Attempted to call 'Zelvane_ToggleWireframe', but there is no current context."));

    backEnd = [](auto...) { return address(+[](GLuint enable) -> GLuint64 { return GLuint64{enable} << 40; }); };
    egl::threadRecord.current = contextAt(0);
    EXPECT_EQ(toggle(3), GLuint64{3} << 40);
}
