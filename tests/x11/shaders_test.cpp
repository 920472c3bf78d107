#include "x11/back_end_fixture.h"

namespace {

class BackEndShaders : public BackEnd {
protected:
    std::string source(GLuint shader, const char *entry = "glGetShaderSource") {
        std::string text(400, '#');
        GLsizei length = 0;
        es<decltype(glGetShaderSource)>(entry)(shader, 400, &length, text.data());
        return text.substr(0, static_cast<size_t>(length));
    }
};

} // namespace

TEST_F(BackEndShaders, AContextCompilesTheVersionsThatItHas) {
    const auto check = [&](int version, const std::string &first, int since) {
        const std::string body = "precision mediump float;\nvoid main() {}\n";
        const GLuint shader = compile(GL_FRAGMENT_SHADER, {first, body.substr(0, 30), body.substr(30)});
        EXPECT_EQ(isCompiled, version >= since) << version << ' ' << first;
        EXPECT_EQ(source(shader), first + body);
        GLint length = 0;
        ES(glGetShaderiv)(shader, GL_SHADER_SOURCE_LENGTH, &length);
        EXPECT_EQ(length, static_cast<GLint>(first.size() + body.size()) + 1);
        GLchar start[5];
        ES(glGetShaderSource)(shader, sizeof start, nullptr, start);
        EXPECT_EQ(start, (first + body).substr(0, 4));
    };
    for (const int version : {20, 30, 31, 32}) {
        start(version / 10, version % 10);
#define SHADER_VERSION(first, since) check(version, first, since);
#include "x11/data/shader_versions.def"
#undef SHADER_VERSION
    }
}

TEST_F(BackEndShaders, TheHostGetsAVersionAndCountsTheApplicationsLines) {
    start(2, 0);
    const GLuint shader = compile(GL_FRAGMENT_SHADER, {"precision mediump float;\nvoid main() {\nbroken;\n}\n"});
    EXPECT_THAT(source(shader, "zvGetOpenGLShaderSource"), testing::HasSubstr("#version"));
    char log[500] = "";
    ES(glGetShaderInfoLog)(shader, sizeof log, nullptr, log);
    EXPECT_THAT(log, testing::HasSubstr("0:3("));
}

TEST_F(BackEndShaders, AnExternalSamplerReadsTheExternalTexture) {
    startWith(2, 0, plainVertex, externalFragment);
    EXPECT_EQ(source(compile(GL_FRAGMENT_SHADER, {externalFragment})), externalFragment);
    const GLubyte texel[] = {0, 0, 255, 255};
    ES(glBindTexture)(GL_TEXTURE_EXTERNAL_OES, 77);
    GLint wrap = 0;
    ES(glGetTexParameteriv)(GL_TEXTURE_EXTERNAL_OES, GL_TEXTURE_WRAP_S, &wrap);
    EXPECT_EQ(wrap, GL_CLAMP_TO_EDGE);
    EXPECT_EQ(integer(GL_TEXTURE_BINDING_EXTERNAL_OES), 77);
    ES(glTexImage2D)(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, texel);
    draw(GL_TRIANGLES, {-1, -1, 3, -1, -1, 3});
    EXPECT_EQ(pixel(3, 3), blue);
}

TEST_F(BackEndShaders, AProgramIsAVertexAndAFragmentShader) {
    start(2, 0);
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
    ES(glProgramParameteri)(half, GL_PROGRAM_SEPARABLE, GL_TRUE);
    EXPECT_EQ(isLinked(), GL_TRUE) << "a pipeline has the other stage from elsewhere";
    ES(glProgramParameteri)(half, GL_PROGRAM_SEPARABLE, GL_FALSE);
    EXPECT_EQ(isLinked(), GL_FALSE);
    attach(half, compile(GL_FRAGMENT_SHADER, {greenFragment}));
    EXPECT_EQ(isLinked(), GL_TRUE);
}
