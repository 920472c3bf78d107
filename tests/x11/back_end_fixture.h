// A desktop context of version 3.2 core on a pbuffer, created without libEGL, and the back end beside it. The fixture
// does libEGL's part: it binds the context and reports the current back-end context.
#pragma once

#define GL_GLEXT_PROTOTYPES
#include <GLES3/gl32.h>

#include <GLES2/gl2ext.h>
#include <gmock/gmock.h>
#include <zelvane/back_end.h>

#include <array>
#include <string>
#include <utility>
#include <vector>

using Pixel = std::array<GLubyte, 4>;

#define SHADER(name, text) constexpr const char *name = text;
#include "x11/data/shaders.def"
#undef SHADER

// The function that an application gets for the name, and the library's own symbol.
#define ES(name) (this->es<decltype(name)>(#name))
#define OWN(name) reinterpret_cast<decltype(&name)>(this->symbol(#name))

class BackEnd : public testing::Test {
public:
    // The record of the thread that binds contexts.
    static inline zvThread thread = {};
    static inline zvEsContext &current = thread.esContext;

protected:
    static constexpr int size = 16;
    static constexpr Pixel black = {0, 0, 0, 255};
    static constexpr Pixel red = {255, 0, 0, 255};
    static constexpr Pixel green = {0, 255, 0, 255};
    static constexpr Pixel blue = {0, 0, 255, 255};

    BackEnd();
    ~BackEnd() override;
    // Every case must clear the errors that it expects.
    void TearDown() override { EXPECT_EQ(current ? error() : GL_NO_ERROR, GL_NO_ERROR); }

    // Creates a back-end context of this version on the bound host context and makes it current in place of the
    // previous one.
    void start(int esMajor, int esMinor, bool isSrgb = false) {
        if (current) OWN(zvDeleteEsContext)(std::exchange(current, nullptr));
        attribs.requestedMajor = esMajor;
        attribs.esMajor = esMajor;
        attribs.esMinor = esMinor;
        attribs.srgbFramebuffer = isSrgb;
        const uint64_t displayAndHandle[2] = {1, 1};
        current = OWN(zvCreateEsContext)(&attribs, displayAndHandle, nullptr, nullptr);
        ASSERT_NE(current, nullptr);
    }
    // The same with a cleared surface and a current program whose attribute 0 is "position".
    void startWith(int esMajor, int esMinor, const std::string &vertex, const std::string &fragment) {
        start(esMajor, esMinor);
        use(vertex, fragment);
        ES(glViewport)(0, 0, size, size);
        clear();
    }

    // The function that an application gets for the name, with its type: es<decltype(glClear)>("glClear").
    template <typename Function>
    Function *es(const char *name) {
        return reinterpret_cast<Function *>(OWN(zvGetExtProcAddress)(name));
    }
    // A symbol of the library itself.
    void *symbol(const char *name) const;

    // Strings of a shader, and whether the last one compiled.
    GLuint compile(GLenum type, const std::vector<std::string> &source) {
        std::vector<const GLchar *> strings;
        for (const std::string &string : source)
            strings.push_back(string.c_str());
        const GLuint shader = ES(glCreateShader)(type);
        ES(glShaderSource)(shader, static_cast<GLsizei>(strings.size()), strings.data(), nullptr);
        ES(glCompileShader)(shader);
        GLint status = GL_FALSE;
        ES(glGetShaderiv)(shader, GL_COMPILE_STATUS, &status);
        isCompiled = status;
        return shader;
    }
    bool isCompiled = false;
    void use(const std::string &vertex, const std::string &fragment) {
        program = ES(glCreateProgram)();
        ES(glAttachShader)(program, compile(GL_VERTEX_SHADER, {vertex}));
        ES(glAttachShader)(program, compile(GL_FRAGMENT_SHADER, {fragment}));
        ES(glBindAttribLocation)(program, 0, "position");
        ES(glLinkProgram)(program);
        GLint isLinked = GL_FALSE;
        ES(glGetProgramiv)(program, GL_LINK_STATUS, &isLinked);
        char log[1000] = "";
        ES(glGetProgramInfoLog)(program, sizeof log, nullptr, log);
        ASSERT_EQ(isLinked, GL_TRUE) << log;
        ES(glUseProgram)(program);
    }
    GLuint program = 0;

    // Draws to an image of this format from then on, in framebuffer 40 and renderbuffer 50.
    void drawToImage(GLenum format) {
        ES(glBindFramebuffer)(GL_FRAMEBUFFER, 40);
        ES(glBindRenderbuffer)(GL_RENDERBUFFER, 50);
        ES(glRenderbufferStorage)(GL_RENDERBUFFER, format, size, size);
        ES(glFramebufferRenderbuffer)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, 50);
    }
    void clear(GLfloat r = 0, GLfloat g = 0, GLfloat b = 0, GLfloat a = 1) {
        ES(glClearColor)(r, g, b, a);
        ES(glClear)(GL_COLOR_BUFFER_BIT);
    }
    // A new bound buffer.
    GLuint buffer(GLenum target, const void *bytes, size_t byteCount) {
        GLuint name = 0;
        ES(glGenBuffers)(1, &name);
        ES(glBindBuffer)(target, name);
        ES(glBufferData)(target, static_cast<GLsizeiptr>(byteCount), bytes, GL_STATIC_DRAW);
        return name;
    }
    // Draws positions of two numbers from a buffer.
    void draw(GLenum mode, const std::vector<GLfloat> &positions) {
        buffer(GL_ARRAY_BUFFER, positions.data(), positions.size() * sizeof(GLfloat));
        ES(glVertexAttribPointer)(0, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
        ES(glEnableVertexAttribArray)(0);
        ES(glDrawArrays)(mode, 0, static_cast<GLsizei>(positions.size() / 2));
    }
    Pixel pixel(GLint x, GLint y) {
        Pixel read = {1, 2, 3, 4};
        ES(glReadPixels)(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
        return read;
    }
    // One value of glGetIntegerv.
    GLint integer(GLenum name) {
        GLint value = -1;
        ES(glGetIntegerv)(name, &value);
        return value;
    }
    std::string text(GLenum name) {
        const GLubyte *const string = ES(glGetString)(name);
        return string ? reinterpret_cast<const char *>(string) : "null";
    }
    // Signed, as the constants are.
    GLint error() { return static_cast<GLint>(ES(glGetError)()); }

    ContextAttribs attribs = {};

private:
    void *m_library;
};
