// A triangle with GLFW: an OpenGL ES 2 context through GLFW's EGL interface. Links only GLFW, which opens the libEGL
// and libGLESv2 that the loader finds, so "zelvane run -- glfw_triangle" runs it on Zelvane.
// Usage: glfw_triangle [SECONDS]     (default: until the window is closed)
#define GLFW_INCLUDE_ES2
#include <GLFW/glfw3.h>

#include <cstdio>
#include <cstdlib>
#include <limits>
#include <utility>

namespace {

#define GL_FUNCTIONS(take)                                                                                             \
    take(GetString) take(GetError) take(Viewport) take(ClearColor) take(Clear) take(CreateShader) take(ShaderSource)   \
        take(CompileShader) take(CreateProgram) take(AttachShader) take(BindAttribLocation) take(LinkProgram)          \
            take(UseProgram) take(VertexAttribPointer) take(EnableVertexAttribArray) take(DrawArrays)
#define DECLARE(name) decltype(&gl##name) name;
#define LOAD(name) reinterpret_cast<decltype(&gl##name)>(glfwGetProcAddress("gl" #name)),

struct Gl {
    GL_FUNCTIONS(DECLARE)
};

constexpr const char *vertexSource = "attribute vec2 position;\n"
                                     "attribute vec3 color;\n"
                                     "varying vec3 shade;\n"
                                     "void main() { shade = color; gl_Position = vec4(position, 0.0, 1.0); }\n";
constexpr const char *fragmentSource = "precision mediump float;\n"
                                       "varying vec3 shade;\n"
                                       "void main() { gl_FragColor = vec4(shade, 1.0); }\n";

// x, y, red, green, blue; read from here at every draw.
constexpr GLfloat corners[] = {-0.8f, -0.7f, 1, 0, 0, 0.8f, -0.7f, 0, 1, 0, 0, 0.8f, 0, 0, 1};

void setUp(const Gl &gl) {
    const GLuint program = gl.CreateProgram();
    for (const auto &[type, source] :
         {std::pair(GL_VERTEX_SHADER, vertexSource), {GL_FRAGMENT_SHADER, fragmentSource}}) {
        const GLuint shader = gl.CreateShader(type);
        gl.ShaderSource(shader, 1, &source, nullptr);
        gl.CompileShader(shader);
        gl.AttachShader(program, shader);
    }
    gl.BindAttribLocation(program, 0, "position");
    gl.BindAttribLocation(program, 1, "color");
    gl.LinkProgram(program);
    gl.UseProgram(program);
    gl.VertexAttribPointer(0, 2, GL_FLOAT, GL_FALSE, 5 * sizeof(GLfloat), corners);
    gl.VertexAttribPointer(1, 3, GL_FLOAT, GL_FALSE, 5 * sizeof(GLfloat), corners + 2);
    gl.EnableVertexAttribArray(0);
    gl.EnableVertexAttribArray(1);
    gl.ClearColor(0.1f, 0.1f, 0.2f, 1);
}

void draw(const Gl &gl, GLFWwindow *window) {
    int width = 0, height = 0;
    glfwGetFramebufferSize(window, &width, &height);
    gl.Viewport(0, 0, width, height);
    gl.Clear(GL_COLOR_BUFFER_BIT);
    gl.DrawArrays(GL_TRIANGLES, 0, 3);
}

GLFWwindow *openWindow() {
    glfwWindowHint(GLFW_CLIENT_API, GLFW_OPENGL_ES_API);
    glfwWindowHint(GLFW_CONTEXT_CREATION_API, GLFW_EGL_CONTEXT_API);
    glfwWindowHint(GLFW_CONTEXT_VERSION_MAJOR, 2);
    glfwWindowHint(GLFW_SAMPLES, 4);
    return glfwCreateWindow(400, 300, "GLFW triangle", nullptr, nullptr);
}

} // namespace

int main(int argc, char **argv) {
    const double seconds = argc > 1 ? std::atof(argv[1]) : std::numeric_limits<double>::infinity();
    glfwSetErrorCallback([](int, const char *text) { std::fprintf(stderr, "glfw_triangle: %s\n", text); });
    GLFWwindow *window = glfwInit() ? openWindow() : nullptr;
    if (!window) {
        glfwTerminate();
        return 1;
    }
    glfwMakeContextCurrent(window);
    glfwSwapInterval(0);
    const Gl gl = {GL_FUNCTIONS(LOAD)};
    std::printf("GL_RENDERER: %s\nGL_VERSION: %s\n", gl.GetString(GL_RENDERER), gl.GetString(GL_VERSION));
    setUp(gl);

    int frames = 0;
    const double start = glfwGetTime();
    double now = start;
    for (; !glfwWindowShouldClose(window) && now - start < seconds; now = glfwGetTime(), ++frames) {
        draw(gl, window);
        glfwSwapBuffers(window);
        glfwPollEvents();
    }
    const GLenum error = gl.GetError();
    std::printf("%d frames, %.1f FPS, error 0x%04X\n", frames, frames / (now - start), error);
    glfwTerminate();
    return error == GL_NO_ERROR ? 0 : 1;
}
