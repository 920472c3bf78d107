#include "x11/back_end_fixture.h"

#include <array>
#include <tuple>
#include <utility>

namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char *vertexShader = "attribute vec2 position;\n"
                                     "void main() { gl_Position = vec4(position, 0.0, 1.0); gl_PointSize = 8.0; }\n";
constexpr const char *fragmentShader = "precision mediump float;\n"
                                       "uniform vec4 color;\n"
                                       "void main() { gl_FragColor = color; }\n";

std::string text(const GLubyte *string) {
    return string ? reinterpret_cast<const char *>(string) : "null";
}

class BackEndDrawing : public BackEnd {
protected:
    // A program of two shaders without a version, in use, with its color green.
    void useProgram() {
        program = ES(glCreateProgram)();
        ES(glAttachShader)(program, compile(GL_VERTEX_SHADER, {vertexShader}));
        ES(glAttachShader)(program, compile(GL_FRAGMENT_SHADER, {fragmentShader}));
        ES(glBindAttribLocation)(program, 0, "position");
        ES(glLinkProgram)(program);
        GLint isLinked = GL_FALSE;
        ES(glGetProgramiv)(program, GL_LINK_STATUS, &isLinked);
        ASSERT_EQ(isLinked, GL_TRUE);
        ES(glUseProgram)(program);
        ES(glUniform4f)(ES(glGetUniformLocation)(program, "color"), 0, 1, 0, 1);
        ES(glViewport)(0, 0, size, size);
    }
    // Puts the points into a buffer and draws them.
    void draw(GLenum mode, const std::vector<GLfloat> &points) {
        GLuint buffer = 0;
        ES(glGenBuffers)(1, &buffer);
        ES(glBindBuffer)(GL_ARRAY_BUFFER, buffer);
        ES(glBufferData)
        (GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(points.size() * sizeof(GLfloat)), points.data(), GL_STATIC_DRAW);
        ES(glVertexAttribPointer)(0, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
        ES(glEnableVertexAttribArray)(0);
        ES(glDrawArrays)(mode, 0, static_cast<GLsizei>(points.size() / 2));
    }
    using Pixel = std::array<GLubyte, 4>;
    Pixel pixel(GLint x, GLint y) {
        Pixel read = {1, 2, 3, 4};
        ES(glReadPixels)(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
        return read;
    }
    static constexpr Pixel green = {0, 255, 0, 255};
    GLuint program = 0;
};

} // namespace

TEST_F(BackEndDrawing, DrawsFromObjectZeroWithAShaderWithoutVersionThatSizesPoints) {
    start(2, 0);
    useProgram();
    ES(glClearColor)(0, 0, 1, 1);
    ES(glClear)(GL_COLOR_BUFFER_BIT);
    draw(GL_TRIANGLES, {-1, -1, 0, -1, -1, 0});
    draw(GL_POINTS, {0.5, 0.5});
    EXPECT_EQ(pixel(1, 1), green);
    EXPECT_EQ(pixel(size * 3 / 4 - 3, size * 3 / 4 - 3), green);
    EXPECT_EQ(pixel(size - 2, 1), (Pixel{0, 0, 255, 255}));
    EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackEndDrawing, TheLinkedNamesReachTheSameContext) {
    start(2, 0);
    reinterpret_cast<decltype(&glClearColor)>(symbol("glClearColor"))(0, 1, 0, 1);
    reinterpret_cast<decltype(&glClear)>(symbol("glClear"))(GL_COLOR_BUFFER_BIT);
    EXPECT_EQ(pixel(3, 3), green);
    const auto getString = reinterpret_cast<decltype(&glGetString)>(symbol("glGetString"));
    EXPECT_STREQ(reinterpret_cast<const char *>(getString(GL_SHADING_LANGUAGE_VERSION)), "OpenGL ES GLSL ES 1.00");
}

TEST_F(BackEnd, TellsTheVersionsOfTheContext) {
    const std::tuple<int, int, const char *, const char *> rows[] = {
        {2, 0, "OpenGL ES 2.0 ", "OpenGL ES GLSL ES 1.00"},
        {3, 0, "OpenGL ES 3.0 ", "OpenGL ES GLSL ES 3.00"},
        {3, 2, "OpenGL ES 3.2 ", "OpenGL ES GLSL ES 3.20"},
    };
    for (const auto &[major, minor, version, language] : rows) {
        start(major, minor);
        EXPECT_THAT(text(ES(glGetString)(GL_VERSION)), StartsWith(version));
        EXPECT_EQ(text(ES(glGetString)(GL_SHADING_LANGUAGE_VERSION)), language);
        EXPECT_EQ(integer(GL_MAJOR_VERSION), major);
        GLfloat told = -1;
        ES(glGetFloatv)(GL_MINOR_VERSION, &told);
        EXPECT_EQ(told, minor);
        deleteEsContext(std::exchange(current(), nullptr));
    }
}

TEST_F(BackEnd, ListsTheSameExtensionsInBothForms) {
    start(3, 0);
    const GLint count = integer(GL_NUM_EXTENSIONS);
    ASSERT_GT(count, 0);
    std::string joined;
    for (GLint index = 0; index < count; ++index)
        joined += (index == 0 ? "" : " ") + text(ES(glGetStringi)(GL_EXTENSIONS, static_cast<GLuint>(index)));
    EXPECT_EQ(joined, text(ES(glGetString)(GL_EXTENSIONS)));
    EXPECT_THAT(joined, Not(HasSubstr("GL_ARB_"))) << "desktop extensions mean nothing to an ES program";
    EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_EQ(ES(glGetStringi)(GL_EXTENSIONS, static_cast<GLuint>(count)), nullptr);
    EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_INVALID_VALUE));
}

TEST_F(BackEnd, VertexArrayZeroIsAlwaysThere) {
    start(3, 0);
    GLuint array = 0, buffer = 0;
    ES(glGenVertexArrays)(1, &array);
    ES(glGenBuffers)(1, &buffer);
    ES(glBindBuffer)(GL_ARRAY_BUFFER, buffer);
    const auto expectZeroBound = [&](const char *reason) {
        EXPECT_EQ(integer(GL_VERTEX_ARRAY_BINDING), 0) << reason;
        ES(glVertexAttribPointer)(0, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
        EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_NO_ERROR)) << reason;
    };
    expectZeroBound("at the beginning");
    ES(glBindVertexArray)(array);
    EXPECT_EQ(integer(GL_VERTEX_ARRAY_BINDING), static_cast<GLint>(array));
    ES(glBindVertexArray)(0);
    expectZeroBound("bound");
    ES(glBindVertexArray)(array);
    ES(glDeleteVertexArrays)(1, &array);
    expectZeroBound("deleting what is bound binds object 0");
}

TEST_F(BackEnd, GivesShaderSourcesBackAsTheyCame) {
    start(3, 0);
    const std::string body = "precision mediump float;\nvoid main() { gl_FragColor = vec4(1.0); }\n";
    const std::string body300 = "precision mediump float;\nout vec4 color;\nvoid main() { color = vec4(1.0); }\n";
    const struct {
        const char *name;
        std::vector<std::string> source;
    } cases[] = {
        {"no version", {body}},
        {"several strings", {body.substr(0, 10), body.substr(10, 20), body.substr(30)}},
        {"version 100", {"#version 100\n", body}},
        {"version 300 es", {"#version 300 es\n", body300}},
        {"a version after comments", {"// #version 100\n/* a\n * b */ \n", "# version 300 es\n", body300}},
        {"a version in a comment only", {"/* #version 300 es */\n// #version 300 es\n", body}},
        {"other directives first", {"#define versions 3\n", body}},
    };
    for (const auto &row : cases) {
        SCOPED_TRACE(row.name);
        std::string whole;
        for (const std::string &string : row.source)
            whole += string;
        const GLuint shader = compile(GL_FRAGMENT_SHADER, row.source);
        GLint isCompiled = GL_FALSE;
        GLint length = -1;
        ES(glGetShaderiv)(shader, GL_COMPILE_STATUS, &isCompiled);
        ES(glGetShaderiv)(shader, GL_SHADER_SOURCE_LENGTH, &length);
        EXPECT_EQ(isCompiled, GL_TRUE);
        EXPECT_EQ(length, static_cast<GLint>(whole.size()) + 1);

        std::string read(whole.size() + 20, '#');
        GLsizei written = -1;
        ES(glGetShaderSource)(shader, static_cast<GLsizei>(read.size()), &written, read.data());
        EXPECT_EQ(read.substr(0, static_cast<size_t>(written)), whole);
        ES(glGetShaderSource)(shader, 5, &written, read.data());
        EXPECT_EQ(written, 4);
        EXPECT_STREQ(read.c_str(), whole.substr(0, 4).c_str());
    }
}

TEST_F(BackEnd, NumbersInTheLogAreThoseOfTheApplicationsLines) {
    start(2, 0);
    const GLuint shader = compile(GL_FRAGMENT_SHADER, {"precision mediump float;\nvoid main() {\nbroken;\n}\n"});
    char log[500] = "";
    ES(glGetShaderInfoLog)(shader, sizeof log, nullptr, log);
    EXPECT_THAT(log, HasSubstr("0:3("));
}

TEST_F(BackEnd, GivesFunctionsOfTheHostForNamesOfEs) {
    start(3, 2);
    // The last one is a debug name, which goes past the overrides.
    for (const char *name : {"glClear", "glDispatchCompute", "glBlendBarrier", "glPrimitiveBoundingBox",
                             "glClearDepthf", "glGetShaderPrecisionFormat", "zvGetIntegerv"})
        EXPECT_THAT(homeOf(getExtProcAddress(name)), StartsWith("libGL.so")) << name;
    EXPECT_THAT(homeOf(symbol("glClear")), StartsWith("libGLESv2.so"));
    EXPECT_THAT(homeOf(getExtProcAddress("glGetString")), StartsWith("libGLESv2.so"));
    EXPECT_NE(getExtProcAddress("Zelvane_GetTexImage"), nullptr);
    for (const char *name : {"glBegin", "glPolygonMode", "glMapBuffer", "glDrawBuffer", "glNoSuchEntry",
                             "eglSwapBuffers", ""})
        EXPECT_EQ(getExtProcAddress(name), nullptr) << name;
    EXPECT_EQ(getExtProcAddress(nullptr), nullptr);
    GLint bound = 0;
    es<decltype(glGetIntegerv)>("zvGetIntegerv")(GL_VERTEX_ARRAY_BINDING, &bound);
    EXPECT_NE(bound, 0);
}

TEST_F(BackEnd, TurnsSrgbWritesOnForASurfaceOfThatSpace) {
    constexpr GLenum framebufferSrgb = 0x8DB9;
    start(2, 0, true);
    EXPECT_EQ(ES(glIsEnabled)(framebufferSrgb), GL_TRUE);
    attribs.srgbFramebuffer = 0;
    setEsContextAttribs(current(), &attribs);
    EXPECT_EQ(ES(glIsEnabled)(framebufferSrgb), GL_FALSE);
    EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackEnd, LeavesTheContextsOfAnotherBackEndAlone) {
    // A program may link the plain names while its current context is one of ES 1: the handle is not ours to read.
    int foreign = 0;
    current() = &foreign;
    const std::string version = text(ES(glGetString)(GL_VERSION));
    current() = nullptr;
    EXPECT_THAT(version, AllOf(Not("null"), Not(StartsWith("OpenGL ES"))));
}

TEST_F(BackEnd, TheRenderModeMayComeBeforeAnyContext) {
    const uint8_t mode = 1;
    setRenderMode(&mode, 1);
    setRenderMode(&mode, 0);
    start(2, 0);
    EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_NO_ERROR));
}
