// A rotating lit torus with a checker texture. The picture depends on the frame number only.
#pragma once

#include "egl_window.h"

#include <vector>

class Scene {
public:
    // Requires the current context. Throws std::runtime_error with the compiler's log when a shader fails.
    explicit Scene(const GlFunctions &gl);
    ~Scene();
    Scene(const Scene &) = delete;
    Scene &operator=(const Scene &) = delete;

    void draw(int frame, Size size);
    // The last frame: RGBA, 8 bits each, rows from the bottom up.
    [[nodiscard]] std::vector<GLubyte> readPixels(Size size) const;

private:
    void makeProgram();
    void makeTexture();
    void makeBuffers();

    const GlFunctions &m_gl;
    GLuint m_program = 0;
    GLuint m_texture = 0;
    GLuint m_buffers[2] = {}; // vertices, indices
    GLsizei m_indexCount = 0;
    GLint m_modelView = -1;
    GLint m_projection = -1;
};
