#include "x11/back_end_fixture.h"

#include <dlfcn.h>
#include <functional>
#include <memory>
#include <numeric>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// A copy with unreadable memory before its first byte or after its last. Never freed.
char *guardedCopy(const void *bytes, size_t size, bool isGuardedInFront) {
    const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    void *const memory = mmap(nullptr, 3 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    char *const middle = static_cast<char *>(memory) + page;
    mprotect(middle, page, PROT_READ | PROT_WRITE);
    return static_cast<char *>(memcpy(isGuardedInFront ? middle : middle + page - size, bytes, size));
}

// The driver reads this when it creates a context, which the fixture does first.
struct ChosenHost : testing::WithParamInterface<bool> {
    ChosenHost() {
        if (GetParam()) return;
        setenv("MESA_GL_VERSION_OVERRIDE", "4.3", 1);
        setenv("MESA_EXTENSION_OVERRIDE", "-GL_ARB_buffer_storage", 1);
    }
};

// On a host with persistent mapping, and on one without.
class BackEndClientArrays : public ChosenHost, public BackEnd {
protected:
    void startColumns(int major, int minor) {
        startWith(major, minor, columnVertex, greenFragment);
        shift = static_cast<GLuint>(ES(glGetAttribLocation)(program, "shift"));
        std::iota(columns.begin(), columns.end(), 0.0F);
        ES(glEnableVertexAttribArray)(0);
    }
    void setColumns(const void *pointer, GLsizei stride = 0) {
        ES(glVertexAttribPointer)(0, 1, GL_FLOAT, GL_FALSE, stride, pointer);
    }
    // The columns that the call draws, such as "012".
    std::string drawn(const std::function<void()> &call) {
        clear();
        call();
        std::string drawn;
        for (int x = 0; x < size; ++x)
            if (pixel(x, 0) == green) drawn += "0123456789abcdef"[x];
        return drawn;
    }
    std::array<GLfloat, 16> columns = {};
    GLuint shift = 0;
};

INSTANTIATE_TEST_SUITE_P(Hosts, BackEndClientArrays, testing::Bool());

} // namespace

TEST_P(BackEndClientArrays, BuffersOfADeadContextAreDeletedByTheNextBindOfItsGroup) {
    startColumns(3, 0);
    setColumns(columns.data());
    ES(glDrawArrays)(GL_POINTS, 0, 3);
    const uint64_t displayAndHandle[2] = {1, 2};
    const zvEsContext sharing = OWN(zvCreateEsContext)(&attribs, displayAndHandle, nullptr, current);
    using Lookup = void (*(*)(const char *))();
    const auto lookup = reinterpret_cast<Lookup>(dlsym(RTLD_DEFAULT, "glXGetProcAddressARB"));
    const auto isHostBuffer = reinterpret_cast<decltype(&::glIsBuffer)>(lookup("glIsBuffer"));
    const auto hostBuffers = [&] {
        int count = 0;
        for (GLuint name = 1; name < 100; ++name)
            count += isHostBuffer(name);
        return count;
    };
    OWN(zvDeleteEsContext)(std::exchange(current, sharing));
    const int before = hostBuffers();
    OWN(zvSetEsContextAttribs)(sharing, &attribs);
    EXPECT_LT(hostBuffers(), before);
}

TEST_P(BackEndClientArrays, EveryDrawReadsTheApplicationsMemory) {
    startColumns(3, 2);
    setColumns(columns.data());
    const GLubyte bytes[] = {5, 3, 9};
    const GLushort shorts[] = {6, 0xFFFF, 2};
    const GLuint words[] = {1, 7};
    const GLint firsts[] = {1, 8};
    const GLsizei counts[] = {1, 3};
    const GLfloat shifts[] = {0, 4, 8};
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, 0, shifts);
    ES(glVertexAttribDivisor)(shift, 2);
    ES(glEnableVertexAttribArray)(shift);
    ES(glEnable)(GL_PRIMITIVE_RESTART_FIXED_INDEX);
#define DRAW(columns, name, arguments)                                                                                 \
    EXPECT_EQ(drawn([&, call = ES(name)] { call arguments; }), columns) << #name #arguments;
#include "x11/data/draws.def"
#undef DRAW

    buffer(GL_ELEMENT_ARRAY_BUFFER, bytes, sizeof bytes);
    EXPECT_EQ(drawn([&] { ES(glDrawElements)(GL_POINTS, 2, GL_UNSIGNED_BYTE, (const void *)1); }), "39");
    const GLfloat pairs[][2] = {{1, 2}, {3, 4}};
    setColumns(pairs, sizeof pairs[0]);
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, sizeof pairs[0], &pairs[0][1]);
    ES(glVertexAttribDivisor)(shift, 0);
    EXPECT_EQ(drawn([&] { ES(glDrawArrays)(GL_POINTS, 0, 2); }), "37");
}

// Draws continue in the memory of the previous one if only vertices and pointers differ.
TEST_P(BackEndClientArrays, DrawsFollowWhatChangesBetweenThem) {
    startColumns(3, 0);
    const auto draw = [&](GLint first, GLsizei count) {
        return drawn([=, this] {
            for (int time = 0; time < 6; ++time)
                ES(glDrawArrays)(GL_POINTS, first, count);
        });
    };
    setColumns(columns.data());
    EXPECT_EQ(draw(0, 2) + draw(2, 3) + draw(0, 1), "012340");
    setColumns(&columns[8]);
    EXPECT_EQ(draw(1, 2), "9a") << "another pointer";
    setColumns(columns.data(), 8);
    EXPECT_EQ(draw(1, 2), "24") << "another stride";
    const GLubyte list[] = {5, 3, 7};
    const auto drawList = [&](GLint base, GLsizei instances) {
        return drawn([=, this] {
            for (int time = 0; time < 8; ++time)
                ES(glDrawElementsInstancedBaseVertex)(GL_POINTS, 3, GL_UNSIGNED_BYTE, list, instances, base);
        });
    };
    setColumns(columns.data());
    EXPECT_EQ(drawList(0, 1) + ' ' + drawList(-2, 2), "357 135") << "by a short list";
    const GLubyte bytes[] = {7, 5, 3, 1};
    ES(glVertexAttribPointer)(0, 1, GL_UNSIGNED_BYTE, GL_FALSE, 0, bytes);
    EXPECT_EQ(draw(1, 2), "35") << "another type";

    const GLfloat pairs[][2] = {{1, 2}, {3, 4}, {5, 6}};
    setColumns(pairs, sizeof pairs[0]);
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, sizeof pairs[0], &pairs[0][1]);
    ES(glEnableVertexAttribArray)(shift);
    EXPECT_EQ(draw(0, 2) + draw(2, 1), "37b") << "a second array";
    const GLuint readsBoth = program;
    use(plainVertex, greenFragment);
    draw(0, 1);
    ES(glUseProgram)(readsBoth);
    EXPECT_EQ(draw(1, 1), "7") << "a program that reads both again";
    setColumns(&pairs[1], sizeof pairs[0]);
    EXPECT_EQ(draw(0, 1), "5") << "one of two pointers";
    const GLuint bound = buffer(GL_ARRAY_BUFFER, columns.data(), sizeof columns);
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, 0, nullptr);
    ES(glDisableVertexAttribArray)(shift);
    EXPECT_EQ(draw(0, 1), "3");
    ES(glEnableVertexAttribArray)(shift);
    EXPECT_EQ(draw(1, 1), "6") << "the second one in a buffer";
    ES(glVertexAttribDivisor)(shift, 1);
    EXPECT_EQ(draw(1, 1), "5");
    ES(glDisableVertexAttribArray)(shift);
    EXPECT_EQ(draw(0, 2), "35");
    EXPECT_EQ(integer(GL_ARRAY_BUFFER_BINDING), static_cast<GLint>(bound));

    const GLfloat low[16] = {};
    ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
    setColumns(low);
    EXPECT_EQ(draw(0, 3), "0");
    use(numberVertex, greenFragment3);
    EXPECT_EQ(draw(4, 3), "456") << "the program sees the numbers";
    const GLushort farthest[] = {0xFFFF};
    std::vector<GLfloat> many(0x10000, 20);
    many.back() = 11;
    use(columnVertex, greenFragment);
    setColumns(many.data());
    EXPECT_EQ(drawn([&] { ES(glDrawElements)(GL_POINTS, 1, GL_UNSIGNED_SHORT, farthest); }), "b") << "restart is off";

    ES(glBindAttribLocation)(program, 5, "position");
    ES(glLinkProgram)(program);
    ES(glDisableVertexAttribArray)(0);
    ES(glVertexAttribPointer)(5, 1, GL_FLOAT, GL_FALSE, 0, columns.data());
    ES(glEnableVertexAttribArray)(5);
    EXPECT_EQ(draw(4, 1), "4") << "another place in the program";
}

TEST_P(BackEndClientArrays, ObjectsKeepTheirArrays) {
    startColumns(2, 0);
    setColumns(columns.data());
    const auto draw = [&](GLsizei count) { return drawn([=, this] { ES(glDrawArrays)(GL_POINTS, 0, count); }); };
    EXPECT_EQ(draw(1) + draw(1) + draw(1) + draw(1), "0000");
    GLuint object = 0;
    ES(glGenVertexArraysOES)(1, &object);
    ES(glBindVertexArrayOES)(object);
    std::vector<GLfloat> many(300000, 20);
    many.back() = 11;
    setColumns(many.data());
    ES(glEnableVertexAttribArray)(0);
    EXPECT_EQ(draw(static_cast<GLsizei>(many.size())), "b") << "which takes other memory than object 0 has";
    ES(glBindVertexArrayOES)(0);
    EXPECT_EQ(draw(2), "01");
    ES(glBindVertexArrayOES)(object);
    many[0] = 5;
    EXPECT_EQ(draw(1), "5");
    ES(glDeleteVertexArraysOES)(1, &object);
    EXPECT_EQ(draw(1), "0");
}

TEST_P(BackEndClientArrays, TheBufferOfAnIndexListIsNotSeen) {
    startColumns(3, 1);
    setColumns(columns.data());
    GLubyte list[40] = {1, 7}; // more than are drawn without an index list
    const GLuint command[5] = {};
    const auto expectNone = [&](const std::function<void()> &call) {
        EXPECT_EQ(drawn([&] { ES(glDrawElements)(GL_POINTS, 40, GL_UNSIGNED_BYTE, list); }), "017");
        call();
        EXPECT_EQ(error(), GL_INVALID_OPERATION);
    };
    GLint size = 0;
    expectNone([&] { ES(glBufferData)(GL_ELEMENT_ARRAY_BUFFER, 4, list, GL_STATIC_DRAW); });
    expectNone([&] { ES(glBufferSubData)(GL_ELEMENT_ARRAY_BUFFER, 0, 1, list); });
    expectNone([&] { ES(glMapBufferRange)(GL_ELEMENT_ARRAY_BUFFER, 0, 1, GL_MAP_WRITE_BIT); });
    expectNone([&] { ES(glGetBufferParameteriv)(GL_ELEMENT_ARRAY_BUFFER, GL_BUFFER_SIZE, &size); });
    buffer(GL_DRAW_INDIRECT_BUFFER, command, sizeof command);
    expectNone([&] { ES(glDrawElementsIndirect)(GL_POINTS, GL_UNSIGNED_BYTE, nullptr); });
    buffer(GL_ELEMENT_ARRAY_BUFFER, &list[1], 1);
    EXPECT_EQ(drawn([&] { ES(glDrawElements)(GL_POINTS, 1, GL_UNSIGNED_BYTE, nullptr); }), "7");
}

TEST_P(BackEndClientArrays, ReadsNoMoreThanTheDrawDoes) {
    startColumns(2, 0);
    // A disabled array and one that the program does not read.
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, 0, reinterpret_cast<const void *>(8));
    ES(glVertexAttribPointer)(7, 4, GL_FLOAT, GL_FALSE, 0, reinterpret_cast<const void *>(8));
    ES(glEnableVertexAttribArray)(7);
    const GLubyte list[] = {5, 4, 6};
    for (const bool isGuardedInFront : {true, false}) {
        setColumns(guardedCopy(&columns[4], 3 * sizeof(GLfloat), isGuardedInFront) - 4 * sizeof(GLfloat));
        const char *const indices = guardedCopy(list, sizeof list, isGuardedInFront);
        EXPECT_EQ(drawn([&] { ES(glDrawElements)(GL_POINTS, 3, GL_UNSIGNED_BYTE, indices); }), "456");
        EXPECT_EQ(drawn([&] { ES(glDrawArrays)(GL_POINTS, 4, 3); }), "456");
    }
    // A freed array, and a draw that reads none.
    auto gone = std::make_unique<std::vector<GLfloat>>(8, 3.0F);
    for (int draw = 0; draw < 4; ++draw) {
        setColumns(gone->data());
        EXPECT_EQ(drawn([&] { ES(glDrawArrays)(GL_POINTS, 0, 1); }), "3");
    }
    setColumns(columns.data(), 8);
    gone.reset();
    ES(glDisableVertexAttribArray)(0);
    ES(glVertexAttrib1f)(0, 12);
    EXPECT_EQ(drawn([&] { ES(glDrawArrays)(GL_POINTS, 0, 1); }), "c");
    ES(glEnableVertexAttribArray)(0);
    // More draws than fit a chunk of the stream, and a draw that is larger than a chunk.
    std::vector<GLfloat> many(300000, 20);
    many.back() = 11;
    setColumns(many.data());
    const auto drawMany = [&] {
        for (int draw = 0; draw < 5; ++draw)
            ES(glDrawArrays)(GL_POINTS, 0, static_cast<GLsizei>(many.size()));
    };
    EXPECT_EQ(drawn(drawMany), "b");
    // Draws of a few vertices that exceed the memory that the host keeps for them.
    GLfloat column = 0;
    setColumns(&column);
    for (int draw = 0; draw < 150000; ++draw) {
        column = draw == 140000 ? 3.0F : 20.0F;
        ES(glDrawArrays)(GL_POINTS, 0, 1);
    }
    EXPECT_EQ(pixel(3, 0), green);
    // The restart index is no vertex.
    startColumns(3, 0);
    ES(glEnable)(GL_PRIMITIVE_RESTART_FIXED_INDEX);
    const GLubyte restarting[] = {1, 255, 0};
    setColumns(guardedCopy(columns.data(), 2 * sizeof(GLfloat), false));
    const auto drawRestarting = [&] {
        for (int time = 0; time < 8; ++time)
            ES(glDrawElements)(GL_POINTS, 3, GL_UNSIGNED_BYTE, restarting);
    };
    EXPECT_EQ(drawn(drawRestarting), "01");
}

TEST_P(BackEndClientArrays, TheStateIsTheApplications) {
    startColumns(3, 0);
    const GLuint bound = buffer(GL_ARRAY_BUFFER, columns.data(), sizeof columns);
    const auto expectArray = [&](GLuint ofBuffer, GLint stride, const void *start) {
        GLint values[5] = {};
        void *pointer = nullptr;
        ES(glGetVertexAttribiv)(0, GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING, &values[0]);
        ES(glGetVertexAttribiv)(0, GL_VERTEX_ATTRIB_ARRAY_STRIDE, &values[1]);
        ES(glGetVertexAttribiv)(0, GL_VERTEX_ATTRIB_ARRAY_ENABLED, &values[2]);
        ES(glGetVertexAttribiv)(0, GL_VERTEX_ATTRIB_ARRAY_SIZE, &values[3]);
        ES(glGetVertexAttribiv)(0, GL_VERTEX_ATTRIB_ARRAY_TYPE, &values[4]);
        ES(glGetVertexAttribPointerv)(0, GL_VERTEX_ATTRIB_ARRAY_POINTER, &pointer);
        EXPECT_THAT(values, testing::ElementsAre(ofBuffer, stride, GL_TRUE, 1, GL_FLOAT));
        EXPECT_EQ(pointer, start);
    };
    setColumns(reinterpret_cast<const void *>(4));
    expectArray(bound, 0, reinterpret_cast<const void *>(4));
    ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
    expectArray(bound, 0, reinterpret_cast<const void *>(4));
    setColumns(columns.data(), 8);
    const GLubyte list[] = {1};
    EXPECT_EQ(drawn([&] { ES(glDrawElements)(GL_POINTS, 1, GL_UNSIGNED_BYTE, list); }), "2");
    expectArray(0, 8, columns.data());
    EXPECT_EQ(integer(GL_ARRAY_BUFFER_BINDING), 0);
    EXPECT_EQ(integer(GL_ELEMENT_ARRAY_BUFFER_BINDING), 0);

    // An array without memory reads the current value of its attribute.
    setColumns(nullptr);
    ES(glVertexAttrib1f)(0, 12);
    EXPECT_EQ(drawn([&] { ES(glDrawArrays)(GL_POINTS, 0, 1); }), "c");
    expectArray(0, 0, nullptr);
}

TEST_P(BackEndClientArrays, BadCallsGiveTheErrorsOfEs) {
    const GLubyte list[8] = {1, 2};
    const GLenum backAndNone[] = {GL_BACK, GL_NONE};
    const GLenum color[] = {GL_COLOR_EXT};
    const GLenum colorAttachment[] = {GL_COLOR_ATTACHMENT0};
    constexpr GLint desktopFormat = 0x805A; // GL_RGBA12
    GLint numbers[4] = {};
    uint64_t pixmapImage[] = {0x30B0, 1}; // EGL_NATIVE_PIXMAP_KHR in 32 bits, the pixmap in 64
    for (const int version : {20, 30}) {
        startColumns(version / 10, version % 10);
        setColumns(columns.data());
        ES(glBindTexture)(GL_TEXTURE_2D, 1);
#define CALL(of, expected, name, arguments)                                                                            \
    if (version == of) {                                                                                               \
        ES(name) arguments;                                                                                            \
        EXPECT_EQ(error(), expected) << #name #arguments;                                                              \
    }
#include "x11/data/calls.def"
#undef CALL
    }
    GLuint array = 0;
    ES(glGenVertexArrays)(1, &array);
    ES(glBindVertexArray)(array);
    EXPECT_EQ(integer(GL_VERTEX_ARRAY_BINDING), static_cast<GLint>(array));
    setColumns(list);
    EXPECT_EQ(error(), GL_INVALID_OPERATION) << "an object of ES 3 takes buffers only";
    ES(glDeleteVertexArrays)(1, &array);
    EXPECT_EQ(integer(GL_VERTEX_ARRAY_BINDING), 0) << "deleting what is bound binds object 0";
    setColumns(list);
}
