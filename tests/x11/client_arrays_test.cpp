#define GL_GLEXT_PROTOTYPES
#include "x11/picture_fixture.h"

#include <GLES2/gl2ext.h>

#include <functional>
#include <numeric>
#include <sys/mman.h>
#include <unistd.h>

namespace {

// Each vertex is a column; its point falls into that column of the lowest row.
constexpr const char *columnVertex = "attribute float position; attribute float shift;\n"
                                     "void main() { gl_PointSize = 1.0;\n"
                                     "gl_Position = vec4((position + shift + 0.5) / 8.0 - 1.0, -0.95, 0.0, 1.0); }";

// A copy whose neighbours cannot be read, before its first byte or behind its last.
class GuardedCopy {
public:
    GuardedCopy(const void *bytes, size_t size, bool isGuardedInFront) {
        const size_t page = static_cast<size_t>(sysconf(_SC_PAGESIZE));
        m_memory = mmap(nullptr, 3 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        char *const middle = static_cast<char *>(m_memory) + page;
        mprotect(middle, page, PROT_READ | PROT_WRITE);
        m_start = isGuardedInFront ? middle : middle + page - size;
        memcpy(m_start, bytes, size);
    }
    template <typename Value>
    const Value *as() const {
        return reinterpret_cast<const Value *>(m_start);
    }

private:
    void *m_memory; // left to the process, which is one a case
    char *m_start;
};

class BackEndClientArrays : public BackEndPicture {
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
    GLuint buffer(GLenum target, const void *bytes, size_t byteCount) {
        GLuint name = 0;
        ES(glGenBuffers)(1, &name);
        ES(glBindBuffer)(target, name);
        ES(glBufferData)(target, static_cast<GLsizeiptr>(byteCount), bytes, GL_STATIC_DRAW);
        return name;
    }
    // The columns that the call draws: "012".
    std::string drawn(const std::function<void()> &call) {
        clear();
        call();
        return row();
    }
    std::string row() {
        std::string drawn;
        for (int x = 0; x < size; ++x)
            if (pixel(x, 0) == green) drawn += "0123456789abcdef"[x];
        return drawn;
    }
    std::array<GLfloat, 16> columns = {};
    GLuint shift = 0;
};

} // namespace

TEST_F(BackEndClientArrays, EveryDrawReadsTheApplicationsMemory) {
    startColumns(3, 2);
    setColumns(columns.data());
    const auto drawArrays = ES(glDrawArrays);
    const auto drawElements = ES(glDrawElements);
    const auto range = ES(glDrawRangeElements);
    const auto baseVertex = ES(glDrawElementsBaseVertex);
    const auto rangeBaseVertex = ES(glDrawRangeElementsBaseVertex);
    const auto instanced = ES(glDrawArraysInstanced);
    const auto instancedBaseVertex = ES(glDrawElementsInstancedBaseVertex);
    const GLubyte bytes[] = {5, 3, 9};
    const GLushort shorts[] = {6, 0xFFFF, 2};
    const GLuint words[] = {1, 7};
    EXPECT_EQ(drawn([&] { drawArrays(GL_POINTS, 3, 2); }), "34");
    EXPECT_EQ(drawn([&] { drawElements(GL_POINTS, 3, GL_UNSIGNED_BYTE, bytes); }), "359");
    const GLint firsts[] = {1, 8};
    const GLsizei counts[] = {1, 3};
    EXPECT_EQ(drawn([&] { ES(glMultiDrawArraysEXT)(GL_POINTS, firsts, counts, 2); }), "189a");
    EXPECT_EQ(drawn([&] { drawElements(GL_POINTS, 2, GL_UNSIGNED_INT, words); }), "17");
    EXPECT_EQ(drawn([&] { range(GL_POINTS, 3, 9, 3, GL_UNSIGNED_BYTE, bytes); }), "359");
    EXPECT_EQ(drawn([&] { baseVertex(GL_POINTS, 3, GL_UNSIGNED_BYTE, bytes, 2); }), "57b");
    EXPECT_EQ(drawn([&] { rangeBaseVertex(GL_POINTS, 3, 9, 3, GL_UNSIGNED_BYTE, bytes, -3); }), "026");
    ES(glEnable)(GL_PRIMITIVE_RESTART_FIXED_INDEX);
    EXPECT_EQ(drawn([&] { drawElements(GL_POINTS, 3, GL_UNSIGNED_SHORT, shorts); }), "26");
    ES(glDisable)(GL_PRIMITIVE_RESTART_FIXED_INDEX);

    buffer(GL_ELEMENT_ARRAY_BUFFER, bytes, sizeof bytes);
    const auto second = reinterpret_cast<const void *>(1);
    EXPECT_EQ(drawn([&] { drawElements(GL_POINTS, 2, GL_UNSIGNED_BYTE, second); }), "39");
    ES(glBindBuffer)(GL_ELEMENT_ARRAY_BUFFER, 0);

    const GLfloat pairs[][2] = {{1, 2}, {3, 4}};
    setColumns(pairs, sizeof pairs[0]);
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, sizeof pairs[0], &pairs[0][1]);
    ES(glEnableVertexAttribArray)(shift);
    EXPECT_EQ(drawn([&] { drawArrays(GL_POINTS, 0, 2); }), "37");

    const GLfloat shifts[] = {0, 4, 8};
    setColumns(columns.data());
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, 0, shifts);
    ES(glVertexAttribDivisor)(shift, 2);
    EXPECT_EQ(drawn([&] { instanced(GL_POINTS, 1, 2, 5); }), "12569a");
    EXPECT_EQ(drawn([&] { instancedBaseVertex(GL_POINTS, 2, GL_UNSIGNED_INT, words, 3, -1); }), "046a");
}

TEST_F(BackEndClientArrays, ReadsNoMoreThanTheDrawDoes) {
    startColumns(2, 0);
    ES(glDisableVertexAttribArray)(shift);
    const GLubyte list[] = {5, 4, 6};
    for (const bool isGuardedInFront : {true, false}) {
        const GuardedCopy vertices(&columns[4], 3 * sizeof(GLfloat), isGuardedInFront);
        const GuardedCopy indices(list, sizeof list, isGuardedInFront);
        setColumns(vertices.as<GLfloat>() - 4);
        // Enabled, and not read by the program.
        ES(glVertexAttribPointer)(7, 4, GL_FLOAT, GL_FALSE, 0, reinterpret_cast<const void *>(8));
        ES(glEnableVertexAttribArray)(7);
        const auto drawList = [&] { ES(glDrawElements)(GL_POINTS, 3, GL_UNSIGNED_BYTE, indices.as<GLubyte>()); };
        EXPECT_EQ(drawn(drawList), "456");
        EXPECT_EQ(drawn([&] { ES(glDrawArrays)(GL_POINTS, 4, 3); }), "456");
    }
    // The ring takes more draws than it holds at a time, and a draw that is larger than it.
    std::vector<GLfloat> many(300000, 20);
    many.back() = 11;
    setColumns(many.data());
    ES(glEnableVertexAttribArray)(shift);
    ES(glVertexAttribPointer)(shift, 1, GL_FLOAT, GL_FALSE, 0, std::vector<GLfloat>(many.size()).data());
    ES(glDisableVertexAttribArray)(shift);
    clear();
    for (int draw = 0; draw < 5; ++draw)
        ES(glDrawArrays)(GL_POINTS, 0, static_cast<GLsizei>(many.size()));
    EXPECT_EQ(row(), "b");
}

TEST_F(BackEndClientArrays, TheStateIsTheApplications) {
    startColumns(3, 0);
    const GLuint bound = buffer(GL_ARRAY_BUFFER, columns.data(), sizeof columns);
    const auto attrib = [&](GLenum name) {
        GLint value = -1;
        ES(glGetVertexAttribiv)(0, name, &value);
        return value;
    };
    const auto pointer = [&] {
        void *value = nullptr;
        ES(glGetVertexAttribPointerv)(0, GL_VERTEX_ATTRIB_ARRAY_POINTER, &value);
        return value;
    };
    setColumns(reinterpret_cast<const void *>(4));
    EXPECT_EQ(attrib(GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING), static_cast<GLint>(bound));
    EXPECT_EQ(pointer(), reinterpret_cast<void *>(4));

    ES(glBindBuffer)(GL_ARRAY_BUFFER, 0);
    EXPECT_EQ(attrib(GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING), static_cast<GLint>(bound)) << "as it was when set";
    setColumns(columns.data(), 8);
    const GLubyte list[] = {1};
    ES(glDrawElements)(GL_POINTS, 1, GL_UNSIGNED_BYTE, list);
    EXPECT_EQ(row(), "2");
    EXPECT_EQ(attrib(GL_VERTEX_ATTRIB_ARRAY_BUFFER_BINDING), 0);
    EXPECT_EQ(attrib(GL_VERTEX_ATTRIB_ARRAY_STRIDE), 8);
    EXPECT_EQ(pointer(), columns.data());
    EXPECT_EQ(integer(GL_ARRAY_BUFFER_BINDING), 0);
    EXPECT_EQ(integer(GL_ELEMENT_ARRAY_BUFFER_BINDING), 0);

    // An array without memory gives the constant of its attribute.
    setColumns(nullptr);
    ES(glVertexAttrib1f)(0, 12);
    clear();
    ES(glDrawArrays)(GL_POINTS, 0, 1);
    EXPECT_EQ(row(), "c");
    EXPECT_EQ(attrib(GL_VERTEX_ATTRIB_ARRAY_ENABLED), GL_TRUE);
}

TEST_F(BackEndClientArrays, BadDrawsGiveTheErrorsOfEs) {
    startColumns(3, 0);
    setColumns(columns.data());
    const auto drawArrays = ES(glDrawArrays);
    const auto drawElements = ES(glDrawElements);
    const auto pointer = ES(glVertexAttribPointer);
    const GLubyte list[] = {1, 2};
    const auto errorOf = [&](const auto &call) {
        call();
        return error();
    };
    EXPECT_EQ(errorOf([&] { drawArrays(GL_POINTS, 0, -1); }), GL_INVALID_VALUE);
    EXPECT_EQ(errorOf([&] { drawArrays(99, 0, 1); }), GL_INVALID_ENUM);
    EXPECT_EQ(errorOf([&] { drawElements(GL_POINTS, -1, GL_UNSIGNED_BYTE, list); }), GL_INVALID_VALUE);
    EXPECT_EQ(errorOf([&] { drawElements(GL_POINTS, 1, GL_FLOAT, list); }), GL_INVALID_ENUM);
    EXPECT_EQ(errorOf([&] { drawElements(GL_POINTS, 1, GL_UNSIGNED_BYTE, nullptr); }), GL_NO_ERROR);
    EXPECT_EQ(errorOf([&] { pointer(0, 5, GL_FLOAT, GL_FALSE, 0, list); }), GL_INVALID_VALUE);
    EXPECT_EQ(errorOf([&] { pointer(0, 1, GL_RGBA, GL_FALSE, 0, list); }), GL_INVALID_ENUM);
    EXPECT_EQ(errorOf([&] { pointer(0, 1, GL_FLOAT, GL_FALSE, -1, list); }), GL_INVALID_VALUE);
    GLuint array = 0;
    ES(glGenVertexArrays)(1, &array);
    ES(glBindVertexArray)(array);
    EXPECT_EQ(errorOf([&] { setColumns(list); }), GL_INVALID_OPERATION) << "an object of ES 3 takes buffers only";
}
