// Contexts that share objects, on one thread and on several.
#include "client_fixture.h"

#include <GLES3/gl3.h>

#include <atomic>
#include <thread>

namespace {

class Sharing : public ClientTest {
protected:
    void SetUp() override {
        initialise(m_x);
        first = makeContext();
        second = makeContext(first);
        surface = makeSurface(makeWindow());
    }
    void use(EGLContext context) { bind(surface, context); }

    EGLContext first = nullptr, second = nullptr;
    EGLSurface surface = nullptr;
    GlFunctions gl;
};

} // namespace

TEST_F(Sharing, NamesAndWhatIsKnownOfThemAreTheGroups) {
    const GLuint made = 500;
    use(first);
    gl.bindTexture(GL_TEXTURE_2D, made);
    gl.texImage2D(GL_TEXTURE_2D, 0, GL_LUMINANCE, 1, 1, 0, GL_LUMINANCE, GL_UNSIGNED_BYTE, "a");
    use(second);
    EXPECT_TRUE(gl.isTexture(made));
    gl.bindTexture(GL_TEXTURE_2D, made);
    GLint swizzle = 0;
    gl.getTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_SWIZZLE_A, &swizzle);
    EXPECT_EQ(swizzle, GL_ALPHA) << "the application set none";

    use(first);
    EXPECT_TRUE(eglDestroyContext(m_egl, second));
    EXPECT_TRUE(gl.isTexture(made));
    gl.deleteTextures(1, &made);
    EXPECT_FALSE(gl.isTexture(made));
    EXPECT_EQ(drawAndRead(gl, 0, 1, 0), green);

    const EGLContext apart = makeContext();
    gl.bindTexture(GL_TEXTURE_2D, made);
    use(apart);
    EXPECT_FALSE(gl.isTexture(made)) << "of another group";
    EXPECT_EQ(gl.getError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(Sharing, ThreadsMakeNamesUpTogether) {
    use(first);
    use(second);
    eglMakeCurrent(m_egl, nullptr, nullptr, nullptr);
    std::atomic<int> faults = 0;
    const auto work = [&](EGLContext context, GLuint start) {
        const EGLint size[] = {EGL_WIDTH, 4, EGL_HEIGHT, 4, EGL_NONE};
        const EGLSurface own = eglCreatePbufferSurface(m_egl, m_config, size);
        if (!eglMakeCurrent(m_egl, own, own, context)) ++faults;
        for (GLuint name = start; name < start + 200; ++name) {
            gl.bindTexture(GL_TEXTURE_2D, name);
            if (!gl.isTexture(name) || gl.getError() != GL_NO_ERROR) ++faults;
        }
        eglMakeCurrent(m_egl, nullptr, nullptr, nullptr);
    };
    std::thread one(work, first, 1), other(work, second, 101);
    one.join();
    other.join();
    EXPECT_EQ(faults, 0);
    use(first);
    for (GLuint name = 1; name <= 300; ++name)
        EXPECT_TRUE(gl.isTexture(name)) << name;
}
