#include "scene.h"

#include <cstddef>

namespace {

constexpr const char *vertexSource = "attribute vec2 position;\n"
                                     "attribute vec4 color;\n"
                                     "attribute vec2 texCoord;\n"
                                     "uniform mat4 matrix;\n"
                                     "varying vec4 shade;\n"
                                     "void main() {\n"
                                     "    shade = color + texCoord.xyxy;\n"
                                     "    gl_Position = matrix * vec4(position, 0.0, 1.0);\n"
                                     "}\n";
constexpr const char *fragmentSource = "precision mediump float;\n"
                                       "uniform float scalar;\n"
                                       "uniform vec4 vector;\n"
                                       "varying vec4 shade;\n"
                                       "void main() { gl_FragColor = shade * scalar + vector; }\n";
constexpr const char *versionLine = "#version 100\n";

Functions findFunctions() {
    Functions gl;
#define FUNCTION(name) gl.name = reinterpret_cast<decltype(gl.name)>(function(#name));
#include "functions.def"
#undef FUNCTION
    return gl;
}

const void *offset(const Vertex *base, size_t bytes) {
    return reinterpret_cast<const void *>(reinterpret_cast<uintptr_t>(base) + bytes);
}

} // namespace

Scene::Scene(Side side) : gl(findFunctions()), grey(side == Side::Host ? GL_RED : GL_LUMINANCE) {
    if (!gl.glGenBuffers) fail("no GL functions");
    // A core context cannot draw from vertex array object 0.
    if (side == Side::Host) gl.glGenVertexArrays(1, &m_defaultArray);
    if (gl.glGenVertexArrays) gl.glGenVertexArrays(2, arrays);
    for (GLuint &program : programs)
        program = makeProgram();
    scalar = gl.glGetUniformLocation(programs[0], "scalar");
    vector = gl.glGetUniformLocation(programs[0], "vector");
    matrix = gl.glGetUniformLocation(programs[0], "matrix");

    for (GLsizei index = 0; index < indexCount; ++index)
        indices[static_cast<size_t>(index)] = static_cast<GLushort>(index % vertexCount);
    gl.glGenBuffers(2, buffers);
    gl.glGenBuffers(1, &vertexBuffer);
    gl.glGenBuffers(1, &indexBuffer);
    reset();
    gl.glBindBuffer(GL_ARRAY_BUFFER, vertexBuffer);
    gl.glBufferData(GL_ARRAY_BUFFER, vertexCount * sizeof(Vertex), vertices.data(), GL_STATIC_DRAW);
    gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, indexBuffer);
    gl.glBufferData(GL_ELEMENT_ARRAY_BUFFER, indexCount * sizeof(GLushort), indices.data(), GL_STATIC_DRAW);
    for (const GLuint buffer : buffers) {
        gl.glBindBuffer(GL_ARRAY_BUFFER, buffer);
        gl.glBufferData(GL_ARRAY_BUFFER, 65536, nullptr, GL_DYNAMIC_DRAW);
    }

    smallColor = makeTexture(smallImage, GL_RGBA);
    largeColor = makeTexture(largeImage, GL_RGBA);
    smallGrey = makeTexture(smallImage, grey);
    largeGrey = makeTexture(largeImage, grey);
    gl.glGenFramebuffers(2, framebuffers);
    for (size_t index = 0; index < 2; ++index) {
        textures[index] = makeTexture(64, GL_RGBA);
        gl.glBindFramebuffer(GL_FRAMEBUFFER, framebuffers[index]);
        gl.glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, textures[index], 0);
    }
    reset();
    if (gl.glGetError() != GL_NO_ERROR) fail("the scene is in error");
}

GLuint Scene::makeProgram() const {
    const GLuint program = gl.glCreateProgram();
    for (const GLenum type : {GL_VERTEX_SHADER, GL_FRAGMENT_SHADER}) {
        const char *const texts[] = {versionLine, type == GL_VERTEX_SHADER ? vertexSource : fragmentSource};
        const GLuint shader = gl.glCreateShader(type);
        gl.glShaderSource(shader, 2, texts, nullptr);
        gl.glCompileShader(shader);
        gl.glAttachShader(program, shader);
    }
    gl.glBindAttribLocation(program, 0, "position");
    gl.glBindAttribLocation(program, 1, "color");
    gl.glBindAttribLocation(program, 2, "texCoord");
    gl.glLinkProgram(program);
    GLint isLinked = GL_FALSE;
    gl.glGetProgramiv(program, GL_LINK_STATUS, &isLinked);
    if (!isLinked) fail("the program does not link");
    return program;
}

GLuint Scene::makeTexture(GLsizei size, GLenum format) const {
    const GLint internal = format == GL_RED ? GL_R8 : static_cast<GLint>(format);
    GLuint texture = 0;
    gl.glGenTextures(1, &texture);
    gl.glBindTexture(GL_TEXTURE_2D, texture);
    gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    gl.glTexImage2D(GL_TEXTURE_2D, 0, internal, size, size, 0, format, GL_UNSIGNED_BYTE, nullptr);
    return texture;
}

void Scene::reset() const {
    gl.glBindFramebuffer(GL_FRAMEBUFFER, 0);
    if (gl.glBindVertexArray) gl.glBindVertexArray(m_defaultArray);
    gl.glBindBuffer(GL_ARRAY_BUFFER, 0);
    gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, 0);
    gl.glUseProgram(programs[0]);
    for (GLuint index = 0; index < 3; ++index)
        gl.glDisableVertexAttribArray(index);
}

void Scene::pointAt(const Vertex *base) const {
    constexpr GLsizei stride = sizeof(Vertex);
    gl.glVertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, stride, offset(base, offsetof(Vertex, position)));
    gl.glVertexAttribPointer(1, 4, GL_FLOAT, GL_FALSE, stride, offset(base, offsetof(Vertex, color)));
    gl.glVertexAttribPointer(2, 2, GL_FLOAT, GL_FALSE, stride, offset(base, offsetof(Vertex, texCoord)));
}

void Scene::enableArrays(GLuint count) const {
    for (GLuint index = 0; index < count; ++index)
        gl.glEnableVertexAttribArray(index);
}
