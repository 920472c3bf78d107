#include "scene.h"

#include "mesh.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace {

constexpr GLuint positionSlot = 0;
constexpr GLuint normalSlot = 1;
constexpr GLuint textureSlot = 2;

constexpr const char *vertexSource = R"(
attribute vec3 position;
attribute vec3 normal;
attribute vec2 textureCoordinate;
uniform mat4 modelView;
uniform mat4 projection;
varying vec3 eyePosition;
varying vec3 eyeNormal;
varying vec2 coordinate;
void main() {
    vec4 eye = modelView * vec4(position, 1.0);
    eyePosition = eye.xyz;
    eyeNormal = mat3(modelView[0].xyz, modelView[1].xyz, modelView[2].xyz) * normal;
    coordinate = textureCoordinate * vec2(6.0, 2.0);
    gl_Position = projection * eye;
}
)";

constexpr const char *fragmentSource = R"(
precision mediump float;
uniform sampler2D checker;
uniform vec3 lightPosition;
varying vec3 eyePosition;
varying vec3 eyeNormal;
varying vec2 coordinate;
void main() {
    vec3 normal = normalize(eyeNormal);
    vec3 toLight = normalize(lightPosition - eyePosition);
    vec3 halfway = normalize(toLight + normalize(-eyePosition));
    float diffuse = max(dot(normal, toLight), 0.0);
    float specular = pow(max(dot(normal, halfway), 0.0), 48.0);
    vec3 color = texture2D(checker, coordinate).rgb;
    gl_FragColor = vec4(color * (0.18 + 0.85 * diffuse) + vec3(0.55 * specular), 1.0);
}
)";

// Column-major, as glUniformMatrix4fv expects it.
using Matrix = std::array<GLfloat, 16>;

Matrix perspective(float aspect) {
    // The torus fits a square view; a narrow window widens the angle.
    constexpr float nearPlane = 1;
    constexpr float farPlane = 20;
    const float scale = 3.0f * std::min(aspect, 1.0f);
    return {scale / aspect,
            0,
            0,
            0,
            0,
            scale,
            0,
            0,
            0,
            0,
            (farPlane + nearPlane) / (nearPlane - farPlane),
            -1,
            0,
            0,
            2 * farPlane * nearPlane / (nearPlane - farPlane),
            0};
}

// Rotates about the torus's own axis, tilts it towards the viewer, then moves it away.
Matrix modelView(float spin, float tilt) {
    const float c = std::cos(spin), s = std::sin(spin);
    const float ct = std::cos(tilt), st = std::sin(tilt);
    return {c, s * ct, s * st, 0, -s, c * ct, c * st, 0, 0, -st, ct, 0, 0, 0, -5, 1};
}

GLuint compile(const GlFunctions &gl, GLenum type, const char *source) {
    const GLuint shader = gl.glCreateShader(type);
    gl.glShaderSource(shader, 1, &source, nullptr);
    gl.glCompileShader(shader);
    GLint isCompiled = GL_FALSE;
    gl.glGetShaderiv(shader, GL_COMPILE_STATUS, &isCompiled);
    if (isCompiled) return shader;
    char log[2048] = "";
    gl.glGetShaderInfoLog(shader, sizeof log, nullptr, log);
    gl.glDeleteShader(shader);
    throw std::runtime_error(std::string("a shader does not compile:\n") + log);
}

} // namespace

Scene::Scene(const GlFunctions &gl) : m_gl(gl) {
    makeProgram();
    makeTexture();
    makeBuffers();
    gl.glEnable(GL_DEPTH_TEST);
    gl.glEnable(GL_CULL_FACE);
    gl.glClearColor(0.16f, 0.19f, 0.25f, 1);
    if (const GLenum error = gl.glGetError()) {
        throw std::runtime_error("OpenGL ES reports error " + std::to_string(error) + " while setting up");
    }
}

Scene::~Scene() {
    m_gl.glDeleteBuffers(2, m_buffers);
    m_gl.glDeleteTextures(1, &m_texture);
    m_gl.glDeleteProgram(m_program);
}

void Scene::makeProgram() {
    m_program = m_gl.glCreateProgram();
    for (const auto &[type, source] :
         {std::pair(GL_VERTEX_SHADER, vertexSource), {GL_FRAGMENT_SHADER, fragmentSource}}) {
        const GLuint shader = compile(m_gl, static_cast<GLenum>(type), source);
        m_gl.glAttachShader(m_program, shader);
        m_gl.glDeleteShader(shader); // deleted with the program
    }
    m_gl.glBindAttribLocation(m_program, positionSlot, "position");
    m_gl.glBindAttribLocation(m_program, normalSlot, "normal");
    m_gl.glBindAttribLocation(m_program, textureSlot, "textureCoordinate");
    m_gl.glLinkProgram(m_program);
    GLint isLinked = GL_FALSE;
    m_gl.glGetProgramiv(m_program, GL_LINK_STATUS, &isLinked);
    if (!isLinked) {
        char log[2048] = "";
        m_gl.glGetProgramInfoLog(m_program, sizeof log, nullptr, log);
        throw std::runtime_error(std::string("the program does not link:\n") + log);
    }
    m_gl.glUseProgram(m_program);
    m_modelView = m_gl.glGetUniformLocation(m_program, "modelView");
    m_projection = m_gl.glGetUniformLocation(m_program, "projection");
    m_gl.glUniform1i(m_gl.glGetUniformLocation(m_program, "checker"), 0);
    m_gl.glUniform3f(m_gl.glGetUniformLocation(m_program, "lightPosition"), 3, 4, 1);
}

void Scene::makeTexture() {
    constexpr int side = 64;
    constexpr std::array<GLubyte, 3> colors[] = {{238, 228, 208}, {196, 84, 48}};
    std::vector<GLubyte> texels;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const auto &color = colors[(x / (side / 4) + y / (side / 4)) % 2];
            texels.insert(texels.end(), color.begin(), color.end());
        }
    }
    m_gl.glGenTextures(1, &m_texture);
    m_gl.glActiveTexture(GL_TEXTURE0);
    m_gl.glBindTexture(GL_TEXTURE_2D, m_texture);
    m_gl.glPixelStorei(GL_UNPACK_ALIGNMENT, 1);
    m_gl.glTexImage2D(GL_TEXTURE_2D, 0, GL_RGB, side, side, 0, GL_RGB, GL_UNSIGNED_BYTE, texels.data());
    m_gl.glGenerateMipmap(GL_TEXTURE_2D);
    m_gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    m_gl.glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
}

void Scene::makeBuffers() {
    const Mesh mesh = makeTorus(1.05f, 0.45f, 96, 48);
    m_indexCount = static_cast<GLsizei>(mesh.indices.size());
    m_gl.glGenBuffers(2, m_buffers);
    m_gl.glBindBuffer(GL_ARRAY_BUFFER, m_buffers[0]);
    m_gl.glBufferData(GL_ARRAY_BUFFER, static_cast<GLsizeiptr>(mesh.vertices.size() * sizeof(Vertex)),
                      mesh.vertices.data(), GL_STATIC_DRAW);
    m_gl.glBindBuffer(GL_ELEMENT_ARRAY_BUFFER, m_buffers[1]);
    m_gl.glBufferData(GL_ELEMENT_ARRAY_BUFFER, static_cast<GLsizeiptr>(mesh.indices.size() * sizeof(GLushort)),
                      mesh.indices.data(), GL_STATIC_DRAW);
    const auto describe = [&](GLuint slot, GLint size, size_t offset) {
        m_gl.glVertexAttribPointer(slot, size, GL_FLOAT, GL_FALSE, sizeof(Vertex), reinterpret_cast<void *>(offset));
        m_gl.glEnableVertexAttribArray(slot);
    };
    describe(positionSlot, 3, offsetof(Vertex, position));
    describe(normalSlot, 3, offsetof(Vertex, normal));
    describe(textureSlot, 2, offsetof(Vertex, textureCoordinate));
}

void Scene::draw(int frame, Size size) {
    const float aspect = static_cast<float>(size.width) / static_cast<float>(size.height);
    const float spin = 0.01f * static_cast<float>(frame);
    const float tilt = -0.95f + 0.3f * std::sin(0.02f * static_cast<float>(frame));
    m_gl.glViewport(0, 0, size.width, size.height);
    m_gl.glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    m_gl.glUniformMatrix4fv(m_projection, 1, GL_FALSE, perspective(aspect).data());
    m_gl.glUniformMatrix4fv(m_modelView, 1, GL_FALSE, modelView(spin, tilt).data());
    m_gl.glDrawElements(GL_TRIANGLES, m_indexCount, GL_UNSIGNED_SHORT, nullptr);
}

std::vector<GLubyte> Scene::readPixels(Size size) const {
    std::vector<GLubyte> pixels(static_cast<size_t>(size.width) * static_cast<size_t>(size.height) * 4);
    m_gl.glReadPixels(0, 0, size.width, size.height, GL_RGBA, GL_UNSIGNED_BYTE, pixels.data());
    if (const GLenum error = m_gl.glGetError()) {
        throw std::runtime_error("OpenGL ES reports error " + std::to_string(error) + " after the last frame");
    }
    return pixels;
}
