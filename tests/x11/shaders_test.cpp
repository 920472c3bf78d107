#include "x11/picture_fixture.h"

namespace {

class BackEndShaders : public BackEndPicture {
protected:
    bool isCompiled(const std::string &source) {
        shader = compile(GL_FRAGMENT_SHADER, {source});
        GLint status = GL_FALSE;
        ES(glGetShaderiv)(shader, GL_COMPILE_STATUS, &status);
        return status;
    }
    std::string source() {
        char text[400] = "";
        ES(glGetShaderSource)(shader, sizeof text, nullptr, text);
        return text;
    }
    GLuint shader = 0;
};

} // namespace

TEST_F(BackEndShaders, AContextCompilesTheVersionsThatItHas) {
    const struct {
        const char *first;
        int since; // version of ES
    } cases[] = {
        {"", 20},
        {"#version 100\n", 20},
        {"#version 300 es\n", 30},
        {"/* a */ # version 310 es\n", 31},
        {"#version 320 es\n", 32},
        {"#version 330\n", 99},
        {"#version 300\n", 99},
    };
    for (const int version : {20, 30, 31, 32}) {
        start(version / 10, version % 10);
        for (const auto &row : cases) {
            const std::string whole = std::string(row.first) + "precision mediump float;\nvoid main() {}\n";
            EXPECT_EQ(isCompiled(whole), version >= row.since) << version << ' ' << row.first;
            EXPECT_EQ(source(), whole);
        }
        deleteEsContext(std::exchange(current(), nullptr));
    }
}

TEST_F(BackEndShaders, AnExternalSamplerReadsTheExternalTexture) {
    constexpr GLenum external = 0x8D65;
    const std::string fragment = "#extension GL_OES_EGL_image_external : require\n"
                                 "precision mediump float; uniform samplerExternalOES image, samplerExternalOESlike;\n"
                                 "void main() { gl_FragColor = texture2D(image, vec2(0.5)); }";
    startWith(2, 0, plainVertex, fragment);
    ASSERT_TRUE(isCompiled(fragment));
    EXPECT_EQ(source(), fragment);
    const GLubyte pixel[] = {0, 0, 255, 255};
    ES(glBindTexture)(external, 77);
    GLint wrap = 0;
    ES(glGetTexParameteriv)(external, GL_TEXTURE_WRAP_S, &wrap);
    EXPECT_EQ(wrap, GL_CLAMP_TO_EDGE);
    EXPECT_EQ(integer(0x8D67), 77);
    ES(glTexImage2D)(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, pixel);
    const GLfloat corners[] = {-1, -1, 3, -1, -1, 3};
    ES(glVertexAttribPointer)(0, 2, GL_FLOAT, GL_FALSE, 0, corners);
    ES(glEnableVertexAttribArray)(0);
    ES(glDrawArrays)(GL_TRIANGLES, 0, 3);
    EXPECT_EQ(this->pixel(3, 3), blue);
}

TEST_F(BackEndShaders, AnSrgbImageOfTheApplicationsTakesSrgbValues) {
    startWith(3, 0, plainVertex, "void main() { gl_FragColor = vec4(0.5); }");
    GLuint framebuffer = 0, renderbuffer = 0;
    ES(glGenFramebuffers)(1, &framebuffer);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, framebuffer);
    ES(glGenRenderbuffers)(1, &renderbuffer);
    ES(glBindRenderbuffer)(GL_RENDERBUFFER, renderbuffer);
    ES(glRenderbufferStorage)(GL_RENDERBUFFER, GL_SRGB8_ALPHA8, size, size);
    ES(glFramebufferRenderbuffer)(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, renderbuffer);
    const auto clearedTo = [&] {
        ES(glClearColor)(0.5F, 0.5F, 0.5F, 1);
        ES(glClear)(GL_COLOR_BUFFER_BIT);
        return int(pixel(2, 2)[0]);
    };
    EXPECT_NEAR(clearedTo(), 188, 1);
    ES(glDeleteFramebuffers)(1, &framebuffer);
    EXPECT_NEAR(clearedTo(), 128, 1) << "the surface does not";
}

TEST_F(BackEndShaders, AProgramIsAVertexAndAFragmentShader) {
    startGreen(2, 0);
    const GLuint half = ES(glCreateProgram)();
    const auto attach = ES(glAttachShader);
    attach(half, compile(GL_VERTEX_SHADER, {plainVertex}));
    attach(half, compile(GL_VERTEX_SHADER, {plainVertex}));
    EXPECT_EQ(error(), GL_INVALID_OPERATION) << "one of a stage";
    const auto isLinked = [&] {
        GLint status = -1;
        ES(glLinkProgram)(half);
        ES(glGetProgramiv)(half, GL_LINK_STATUS, &status);
        return status;
    };
    EXPECT_EQ(isLinked(), GL_FALSE);
    attach(half, compile(GL_FRAGMENT_SHADER, {greenFragment}));
    EXPECT_EQ(isLinked(), GL_TRUE);
}
