// Pictures of a small framebuffer, with programs and vertices of a few lines.
#pragma once

#include "x11/back_end_fixture.h"

#include <array>

using Pixel = std::array<GLubyte, 4>;

class BackEndPicture : public BackEnd {
protected:
    static constexpr Pixel black = {0, 0, 0, 255};
    static constexpr Pixel green = {0, 255, 0, 255};
    static constexpr Pixel blue = {0, 0, 255, 255};

    void TearDown() override { EXPECT_EQ(current() ? error() : GL_NO_ERROR, GL_NO_ERROR); }

    // Starts a context with a program in use whose attribute 0 is "vec2 position".
    void startWith(int major, int minor, const std::string &vertex, const std::string &fragment) {
        start(major, minor);
        use(vertex, fragment);
        ES(glViewport)(0, 0, size, size);
        clear();
    }
    // Draws green wherever the position says.
    void startGreen(int major, int minor) { startWith(major, minor, plainVertex, greenFragment); }

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
    void clear() {
        ES(glClearColor)(0, 0, 0, 1);
        ES(glClear)(GL_COLOR_BUFFER_BIT);
    }
    Pixel pixel(GLint x, GLint y) {
        Pixel read = {1, 2, 3, 4};
        ES(glReadPixels)(x, y, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
        return read;
    }
    // As the constants are written, signed.
    GLint error() { return static_cast<GLint>(ES(glGetError)()); }
    GLint integer(GLenum name) {
        GLint value = -1;
        ES(glGetIntegerv)(name, &value);
        return value;
    }

    static constexpr const char *plainVertex =
        "attribute vec2 position; void main() { gl_Position = vec4(position, 0.0, 1.0); }";
    static constexpr const char *greenFragment = "void main() { gl_FragColor = vec4(0.0, 1.0, 0.0, 1.0); }";
    GLuint program = 0;
};
