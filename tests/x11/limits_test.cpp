// A device's limits are enforced: exceeding them is an error even if the host allows it.
#include "x11/back_end_fixture.h"

extern std::string profileText;

namespace {

class BackEndLimits : public BackEnd {
protected:
    void startDevice(int major, int minor) {
        profileText =
#include "x11/data/small_device.def"
            ;
        start(major, minor);
    }
    GLint links(const std::string &vertex, const std::string &fragment) {
        const GLuint made = ES(glCreateProgram)();
        ES(glAttachShader)(made, compile(GL_VERTEX_SHADER, {vertex}));
        ES(glAttachShader)(made, compile(GL_FRAGMENT_SHADER, {fragment}));
        ES(glLinkProgram)(made);
        GLint status = -1;
        ES(glGetProgramiv)(made, GL_LINK_STATUS, &status);
        return status;
    }
};

// A pair of shaders with this many vectors of attributes, varyings and uniforms of either stage.
std::pair<std::string, std::string> shadersWith(int attribs, int varyings, int vertexUniforms, int fragmentUniforms) {
    const auto list = [](const char *kind, int count) {
        return count ? std::string(kind) + '[' + std::to_string(count) + "];\n" : std::string();
    };
    std::string vertex, sum = "vec4(0.0)", sent, read = "vec4(0.0)";
    for (int index = 0; index < attribs; ++index) {
        vertex += "attribute vec4 a" + std::to_string(index) + ";\n";
        sum += " + a" + std::to_string(index);
    }
    const std::string varying = list("varying highp vec4 v", varyings);
    for (int index = 0; index < varyings; ++index) {
        sent += "v[" + std::to_string(index) + "] = gl_Position * " + std::to_string(index + 1) + ".0;\n";
        read += " + v[" + std::to_string(index) + "] * v[" + std::to_string(index) + "]";
    }
    for (int index = 0; index < vertexUniforms; ++index)
        sum += " + u[" + std::to_string(index) + ']';
    for (int index = 0; index < fragmentUniforms; ++index)
        read += " + w[" + std::to_string(index) + ']';
    vertex +=
        varying + list("uniform vec4 u", vertexUniforms) + "void main() { gl_Position = " + sum + ";\n" + sent + "}";
    return {vertex, "precision highp float;\n" + varying + list("uniform vec4 w", fragmentUniforms) +
                        "void main() { gl_FragColor = " + read + "; }"};
}

} // namespace

TEST_F(BackEndLimits, CallsBeyondThemAreErrors) {
    startDevice(3, 0);
    ES(glBindRenderbuffer)(GL_RENDERBUFFER, 1);
    ES(glBindFramebuffer)(GL_FRAMEBUFFER, 1);
    const GLenum buffers[3] = {};
#define CALL(expected, name, arguments)                                                                                \
    ES(name) arguments;                                                                                                \
    EXPECT_EQ(error(), expected) << #name #arguments;
#include "x11/data/limit_calls.def"
#undef CALL
    ES(glViewport)(0, 0, 500, 500);
    GLint box[4] = {};
    ES(glGetIntegerv)(GL_VIEWPORT, box);
    EXPECT_EQ(box[2], 400);
    EXPECT_EQ(box[3], 300);
}

TEST_F(BackEndLimits, ProgramsBeyondThemDoNotLink) {
    startDevice(2, 0);
    const struct {
        int attribs, varyings, vertexUniforms, fragmentUniforms;
        GLint status;
    } rows[] = {{8, 8, 20, 10, GL_TRUE}, {9, 1, 1, 1, GL_FALSE},  {1, 9, 1, 1, GL_FALSE},
                {1, 1, 21, 1, GL_FALSE}, {1, 1, 1, 11, GL_FALSE}, {1, 0, 0, 0, GL_TRUE}};
    for (const auto &row : rows) {
        const auto [vertex, fragment] =
            shadersWith(row.attribs, row.varyings, row.vertexUniforms, row.fragmentUniforms);
        EXPECT_EQ(links(vertex, fragment), row.status) << vertex << fragment;
    }
}

TEST_F(BackEndLimits, CapturesBeyondThemDoNotLink) {
    startDevice(3, 0);
    const std::tuple<std::vector<const char *>, GLenum, GLint> rows[] = {
        {{"two"}, GL_SEPARATE_ATTRIBS, GL_TRUE},
        {{"four"}, GL_SEPARATE_ATTRIBS, GL_FALSE},
        {{"four", "two"}, GL_INTERLEAVED_ATTRIBS, GL_TRUE},
        {{"four", "two", "one"}, GL_INTERLEAVED_ATTRIBS, GL_FALSE},
    };
    for (const auto &[names, mode, status] : rows) {
        const GLuint made = ES(glCreateProgram)();
        ES(glAttachShader)
        (made, compile(GL_VERTEX_SHADER, {"#version 300 es\nout float one; out vec2 two; out vec4 four;"
                                          "void main() { one = 1.0; two = vec2(1); four = vec4(1);"
                                          "gl_Position = vec4(0); }"}));
        ES(glAttachShader)(made, compile(GL_FRAGMENT_SHADER, {"#version 300 es\nvoid main() {}"}));
        ES(glTransformFeedbackVaryings)(made, static_cast<GLsizei>(names.size()), names.data(), mode);
        ES(glLinkProgram)(made);
        GLint linked = -1;
        ES(glGetProgramiv)(made, GL_LINK_STATUS, &linked);
        EXPECT_EQ(linked, status) << names.size() << ' ' << mode;
    }
}

TEST_F(BackEndLimits, ShadersReadTheDevicesNumbers) {
    startDevice(2, 0);
    use(plainVertex, "void main() { gl_FragColor = vec4(gl_MaxVertexAttribs == 8 ? 0.0 : 1.0,\n"
                     "gl_MaxFragmentUniformVectors == 10 ? 1.0 : 0.0, 0.0, 1.0); }");
    ES(glViewport)(0, 0, size, size);
    clear();
    draw(GL_TRIANGLES, {-1, -1, 3, -1, -1, 3});
    EXPECT_EQ(pixel(3, 3), green);
}
