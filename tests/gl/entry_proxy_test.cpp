// Contexts that are only an address, and a back end of the test that returns their functions.
#include "gl/entry_proxy.h"

#include <gmock/gmock.h>

#include <atomic>
#include <functional>
#include <mutex>
#include <thread>
#include <tuple>
#include <utility>

#include "foundation/log.h"
#include "gl/dynamic_entries.h"
#include "gl/entry_tables.h"

using gl::Entry;
using gl::GLEntryProxy;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::SizeIs;

namespace {

// Set before other threads start; called on the querying thread.
std::function<void *(const void *context, const std::string &name)> backEnd = [](auto...) { return nullptr; };
std::atomic<size_t> questions = 0; // queries of the back end
std::mutex errorMutex;
std::vector<std::string> errors; // the logged errors

std::byte contexts[64];

void makeCurrent(size_t context) {
    gl::currentFunctions = &gl::functionTableAt(&contexts[context], [](void *asked, const char *name) {
        ++questions;
        return reinterpret_cast<gl::Function>(backEnd(asked, name));
    });
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

// Two slots that the tables assign to other names, with these signatures here.
constexpr GLEntryProxy first{"glFirst", 0};
constexpr GLEntryProxy second{"glSecond", 1};

template <const GLEntryProxy &proxy, typename Signature>
void openSlot() {
    gl::functionsWithoutContext.slots[proxy.slot] = reinterpret_cast<gl::Function>(&Entry<proxy, Signature>::resolve);
}

class EntryProxy : public testing::Test {
protected:
    EntryProxy() {
        openSlot<first, int()>();
        openSlot<second, int()>();
        setLogListener([](int32_t, const char *text) {
            const std::lock_guard lock(errorMutex);
            errors.emplace_back(text);
        });
    }
};

} // namespace

TEST_F(EntryProxy, OnePointerReachesTheFunctionOfEachContext) {
    const auto entry = &Entry<first, int()>::call; // obtained before any context exists
    EXPECT_EQ(entry(), 0);
    EXPECT_EQ(entry(), 0);
    const auto line = "Attempted to call 'glFirst', but there is no current context.";
    EXPECT_THAT(std::exchange(errors, {}), ElementsAre(line, line));

    backEnd = [](const void *context, const std::string &name) {
        EXPECT_EQ(name, "glFirst");
        return address(context == contexts ? answerOne : answerTwo);
    };
    for (const size_t context : {0, 1, 0, 1}) {
        makeCurrent(context);
        EXPECT_EQ(entry(), context ? 2 : 1);
    }
    EXPECT_EQ(questions, 2u);
}

// Also for a new context at the address of a dead one.
TEST_F(EntryProxy, UnknownNameIsAskedAndLoggedOnceForEachContext) {
    const auto line = "Attempted to use an unsupported extension function: 'glFirst'";
    for (const size_t context : {0, 1}) {
        makeCurrent(context);
        backEnd = [](auto...) { return nullptr; };
        EXPECT_EQ((Entry<first, int()>::call()), 0);
        backEnd = [](auto...) { return address(answerOne); };
        makeCurrent(context);
        EXPECT_EQ((Entry<first, int()>::call()), 0);
        EXPECT_THAT(std::exchange(errors, {}), ElementsAre(line));
        EXPECT_EQ(questions, context + 1);
    }
}

// Narrow, wide and floating arguments, and more than fit into registers; the first call and the resolved one differ.
TEST_F(EntryProxy, ArgumentsAndResultPassUnchanged) {
    using Mixed = GLint64(GLubyte, GLfloat, GLint64, GLshort, GLfloat, void *, GLint, GLint, GLint, const GLint *);
    openSlot<first, Mixed>();
    static GLint object;
    static const std::tuple arguments(GLubyte{255}, 0.5f, GLint64{-1} << 40, GLshort{-7}, -2.25f, &object, 1, 2, 3,
                                      &object + 1);
    using Received =
        std::tuple<GLubyte, GLfloat, GLint64, GLshort, GLfloat, void *, GLint, GLint, GLint, const GLint *>;
    backEnd = [](auto...) {
        return address<Mixed>([](auto... received) { return GLint64{Received(received...) == arguments} << 50; });
    };
    makeCurrent(0);
    for (const int call : {1, 2})
        EXPECT_EQ(std::apply(Entry<first, Mixed>::call, arguments), 1LL << 50) << "call " << call;
}

// A name that is in no table, whose signature only the caller knows: all argument registers and the stack must be
// preserved through the first call.
TEST_F(EntryProxy, DynamicEntriesPassWhatTheyDoNotKnow) {
    using Mixed = double(int, double, void *, float, int, int, double, int, double, int, double, int, double, int,
                         double, double, double);
    const auto entry = reinterpret_cast<Mixed *>(gl::dynamicEntry("glNobodyKnows"));
    if (!entry) GTEST_SKIP() << "this machine has no such entries";
    EXPECT_EQ(gl::dynamicEntry("glNobodyKnows"), reinterpret_cast<gl::Function>(entry));
    const auto call = [&] { return entry(1, .5, contexts, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16); };
    EXPECT_EQ(call(), 0);
    EXPECT_THAT(std::exchange(errors, {}), SizeIs(1)) << "no current context";

    backEnd = [](const void *, const std::string &name) {
        EXPECT_EQ(name, "glNobodyKnows");
        return address<Mixed>([](int a, double b, void *c, float d, int e, int f, double g, int h, double i, int j,
                                 double k, int l, double m, int n, double o, double p, double q) {
            const bool isWhole = c == contexts && a == 1 && d == 3 && e == 4 && f == 5 && g == 6 && h == 7 && i == 8;
            return isWhole ? b + j + k + l + m + n + o + p + q : -1;
        });
    };
    makeCurrent(0);
    for (const int time : {1, 2})
        EXPECT_EQ(call(), 100.5) << time;
    makeCurrent(1);
    EXPECT_NE(gl::dynamicEntry("glMadeLater"), nullptr);
    backEnd = [](auto...) { return nullptr; };
    EXPECT_EQ(reinterpret_cast<int (*)()>(gl::dynamicEntry("glMadeLater"))(), 0) << "in a table that was there before";
    for (int index = 0; gl::dynamicEntry(("gl" + std::to_string(index)).c_str()); ++index)
        ASSERT_LT(index, 1000) << "there is an end to them";
    EXPECT_EQ(call(), 0);
}

TEST_F(EntryProxy, BackEndMayCallEntriesWhileItAnswers) {
    static bool isNested = false;
    backEnd = [](const void *, const std::string &name) -> void * {
        if (name == "glSecond") return address(answerTwo);
        if (std::exchange(isNested, true)) return nullptr;
        EXPECT_EQ((Entry<second, int()>::call()), 2);
        EXPECT_EQ((Entry<first, int()>::call()), 0);
        return address(answerOne);
    };
    makeCurrent(0);
    EXPECT_EQ((Entry<first, int()>::call()), 0) << "the answer that came first stays";
    EXPECT_THAT(errors, SizeIs(1));
}

// Contexts move from thread to thread between calls.
TEST_F(EntryProxy, ThreadsAskOnceForEachContext) {
    backEnd = [](const void *context, const std::string &) {
        std::this_thread::yield();
        return context < &contexts[32] ? address(answerOne) : nullptr;
    };
    std::mutex owned[64];
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&, thread] {
            for (int index = 0; index < 64; ++index) {
                const int own = (index + thread * 16) % 64;
                const std::lock_guard lock(owned[own]);
                makeCurrent(own);
                for (int call = 0; call < 20; ++call)
                    EXPECT_EQ((Entry<first, int()>::call()), own < 32 ? 1 : 0);
            }
        });
    threads.clear();
    EXPECT_EQ(questions, 64u);
    const std::string line = "Attempted to use an unsupported extension function: 'glFirst'";
    EXPECT_THAT(errors, AllOf(SizeIs(32), Each(line)));
}

// Integers and pointers must be returned whole.
TEST_F(EntryProxy, DebugEntriesHandBackAWholeRegister) {
    const auto toggle = reinterpret_cast<GLuint64 (*)(GLuint)>(gl::extensionTable[208].function);
    EXPECT_EQ(toggle(1), 0u);
    EXPECT_THAT(std::exchange(errors, {}),
                ElementsAre("Attempted to call 'Zelvane_ToggleWireframe', but there is no current context."));

    backEnd = [](auto...) { return address(+[](GLuint enable) -> GLuint64 { return GLuint64{enable} << 40; }); };
    makeCurrent(0);
    EXPECT_EQ(toggle(3), GLuint64{3} << 40);
}
