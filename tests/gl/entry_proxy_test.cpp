#include "gl/entry_proxy.h"

#include <gmock/gmock.h>

#include <barrier>
#include <chrono>
#include <thread>
#include <utility>

#include "fake_context.h"
#include "gl/entry_tables.h"

using gl::Entry;
using gl::GLEntryProxy;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

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
    EntryProxy() { fake::reset(); }
};

// Threads that start together: body(index), each with no context at first.
void runThreads(int count, const std::function<void(int)> &body) {
    std::barrier start(count);
    std::vector<std::jthread> threads;
    for (int index = 0; index < count; ++index)
        threads.emplace_back([&, index] {
            start.arrive_and_wait();
            body(index);
        });
}

} // namespace

TEST_F(EntryProxy, OnePointerReachesTheFunctionOfEachContext) {
    static constinit GLEntryProxy record{"glName"};
    const auto entry = &Entry<record, int()>::call; // taken before any context is there
    fake::backEnd = [](const egl::Context *context, const std::string &name) {
        EXPECT_EQ(name, "glName");
        return address(context == fake::context(0) ? answerOne : answerTwo);
    };
    for (const int round : {0, 1}) {
        SCOPED_TRACE(round);
        egl::threadRecord.current = fake::context(0);
        EXPECT_EQ(entry(), 1);
        egl::threadRecord.current = fake::context(1);
        EXPECT_EQ(entry(), 2);
    }
    EXPECT_EQ(fake::questionCount(), 2u);
    EXPECT_THAT(fake::takeLog(), IsEmpty());
}

// Also what a new context at the address of a dead one gets.
TEST_F(EntryProxy, UnknownNameIsAskedAndLoggedOnceForEachContext) {
    static constinit GLEntryProxy record{"glUnknown"};
    const auto line = "error: Attempted to use an unsupported extension function: 'glUnknown'";
    egl::threadRecord.current = fake::context(0);
    EXPECT_EQ((Entry<record, int()>::call()), 0);
    EXPECT_THAT(fake::takeLog(), ElementsAre(line));
    fake::backEnd = [](const egl::Context *, const std::string &) { return address(answerOne); };
    EXPECT_EQ((Entry<record, int()>::call()), 0);
    EXPECT_THAT(fake::takeLog(), IsEmpty());
    EXPECT_EQ(fake::questionCount(), 1u);

    fake::backEnd = [](const egl::Context *, const std::string &) { return nullptr; };
    egl::threadRecord.current = fake::context(1);
    EXPECT_EQ((Entry<record, int()>::call()), 0);
    EXPECT_THAT(fake::takeLog(), ElementsAre(line));
}

// Narrow, wide and floating arguments, and more than fit into registers; the first call and the resolved one differ.
TEST_F(EntryProxy, ArgumentsAndResultPassUnchanged) {
    using Mixed = GLint64(GLubyte, GLfloat, GLint64, GLshort, GLfloat, void *, GLint, GLint, GLint, const GLint *);
    static constinit GLEntryProxy record{"glMixed"};
    static int object;
    fake::backEnd = [](const egl::Context *, const std::string &) {
        return address(+[](GLubyte a, GLfloat b, GLint64 c, GLshort d, GLfloat e, void *f, GLint g, GLint h, GLint i,
                           const GLint *j) -> GLint64 {
            const bool same = a == 255 && b == 0.5f && c == -(1LL << 40) && d == -7 && e == -2.25f && f == &object &&
                              g == 1 && h == 2 && i == 3 && j == nullptr;
            return same ? 1LL << 50 : 0;
        });
    };
    egl::threadRecord.current = fake::context(0);
    for (const int call : {1, 2})
        EXPECT_EQ((Entry<record, Mixed>::call(255, 0.5f, -(1LL << 40), -7, -2.25f, &object, 1, 2, 3, nullptr)),
                  1LL << 50)
            << "call " << call;
}

TEST_F(EntryProxy, BackEndMayCallEntriesWhileItAnswers) {
    static constinit GLEntryProxy outer{"glOuter"};
    static constinit GLEntryProxy inner{"glInner"};
    static bool isNested = false;
    fake::backEnd = [](const egl::Context *, const std::string &name) {
        if (name == "glInner") return address(answerTwo);
        if (!std::exchange(isNested, true)) {
            EXPECT_EQ((Entry<inner, int()>::call()), 2);
            EXPECT_EQ((Entry<outer, int()>::call()), 1);
        }
        return address(answerOne);
    };
    egl::threadRecord.current = fake::context(0);
    EXPECT_EQ((Entry<outer, int()>::call()), 1);
}

TEST_F(EntryProxy, ThreadsAskOnceForEachContext) {
    static constinit GLEntryProxy record{"glShared"};
    // Four threads share each context; every other context has no such function.
    fake::backEnd = [](const egl::Context *context, const std::string &) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        return context == fake::context(0) ? address(answerOne) : nullptr;
    };
    runThreads(8, [](int index) {
        egl::threadRecord.current = fake::context(index % 2);
        EXPECT_EQ((Entry<record, int()>::call()), index % 2 ? 0 : 1);
    });
    EXPECT_EQ(fake::questionCount(), 2u);
    EXPECT_THAT(fake::takeLog(), ElementsAre("error: Attempted to use an unsupported extension function: 'glShared'"));
}

TEST_F(EntryProxy, ThreadsCallWhileOthersResolve) {
    static constinit GLEntryProxy record{"glGrowing"};
    fake::backEnd = [](const egl::Context *context, const std::string &) {
        return address(context < fake::context(32) ? answerOne : answerTwo);
    };
    runThreads(4, [](int thread) {
        for (int index = 0; index < 64; ++index) {
            const int own = (index + thread * 16) % 64;
            egl::threadRecord.current = fake::context(own);
            for (int call = 0; call < 20; ++call)
                ASSERT_EQ((Entry<record, int()>::call()), own < 32 ? 1 : 2);
        }
    });
    EXPECT_EQ(fake::questionCount(), 64u);
}

// Whatever a back end returns there, an integer or a pointer, comes through whole.
TEST_F(EntryProxy, DebugEntriesHandBackAWholeRegister) {
    const auto toggle = reinterpret_cast<GLuint64 (*)(GLuint)>(gl::extensionTable[208].function);
    EXPECT_EQ(toggle(1), 0u);
    EXPECT_THAT(fake::takeLog(),
                ElementsAre("error: Attempted to call 'Zelvane_ToggleWireframe', but there is no current context."));

    fake::backEnd = [](const egl::Context *, const std::string &) {
        return address(+[](GLuint enable) -> GLuint64 { return GLuint64{enable} << 40; });
    };
    egl::threadRecord.current = fake::context(0);
    EXPECT_EQ(toggle(3), GLuint64{3} << 40);
}
