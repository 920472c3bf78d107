// Contexts of desktop OpenGL, which desktop programs get on request.
#include "client_fixture.h"

#include <GLES3/gl32.h>

#include <fstream>
#include <thread>
#include <vector>

namespace {

using Attributes = std::vector<EGLint>;

constexpr GLenum profileMask = 0x9126; // GL_CONTEXT_PROFILE_MASK
constexpr GLint GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT = 1;
// Debug, forward compatible and robust, of EGL; the first two are exchanged in OpenGL.
constexpr EGLint allFlags = 7;
constexpr EGLint core = EGL_CONTEXT_OPENGL_CORE_PROFILE_BIT, compatible = EGL_CONTEXT_OPENGL_COMPATIBILITY_PROFILE_BIT;

// Before the first function is looked up.
void wantDevice(const char *name) {
    const std::string home = getenv("HOME");
    setenv("ZELVANE_PREFERENCES_DIRECTORY", home.c_str(), 1);
    std::ofstream(home + "/com.tarnlight.Zelvane.plist")
        << "<plist version=\"1.0\"><dict><key>Zelvane 6.31</key><dict><key>profiles_directory</key><string>"
        << DESKTOP_PROFILES << "</string><key>current_profile</key><string>" << name
        << "</string></dict></dict></plist>";
}

class DesktopOpenGl : public ClientTest {
protected:
    void begin(const char *clients = "1", const char *openGl = "1", const char *device = "Desktop") {
        setenv("ZELVANE_DESKTOP_CLIENTS", clients, 1);
        setenv("ZELVANE_DESKTOP_OPENGL", openGl, 1);
        wantDevice(device);
        initialise(reinterpret_cast<EGLNativeDisplayType>(m_x));
        // Pbuffers of it can be textures with alpha.
        const EGLint wanted[] = {EGL_ALPHA_SIZE, 8, EGL_SURFACE_TYPE, EGL_WINDOW_BIT | EGL_PBUFFER_BIT, EGL_NONE};
        EGLint count = 0;
        ASSERT_TRUE(eglChooseConfig(m_egl, wanted, &m_config, 1, &count));
    }
    EGLContext create(EGLenum api, Attributes list, EGLContext share = EGL_NO_CONTEXT) {
        EXPECT_TRUE(eglBindAPI(api));
        list.push_back(EGL_NONE);
        return eglCreateContext(m_egl, m_config, share, list.data());
    }
    EGLContext createEs() { return create(EGL_OPENGL_ES_API, {EGL_CONTEXT_MAJOR_VERSION, 3}); }
    EGLContext createCore(EGLContext share = EGL_NO_CONTEXT) {
        return create(EGL_OPENGL_API, {EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 3}, share);
    }
    EGLSurface makePbuffer() {
        const EGLint list[] = {
            EGL_WIDTH,      16,      EGL_HEIGHT, 16, EGL_TEXTURE_FORMAT, EGL_TEXTURE_RGBA, EGL_TEXTURE_TARGET,
            EGL_TEXTURE_2D, EGL_NONE};
        return eglCreatePbufferSurface(m_egl, m_config, list);
    }
    void bindBoth(EGLSurface draw, EGLSurface read, EGLContext context) {
        ASSERT_TRUE(eglMakeCurrent(m_egl, draw, read, context)) << std::hex << eglGetError();
    }
    static Pixel pixel() {
        Pixel read{1, 2, 3, 4};
        PFNGLREADPIXELSPROC(Named("glReadPixels"))(5, 5, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
        return read;
    }
    static Pixel cleared(float red, float green, float blue) { return drawAndRead(GlFunctions(), red, green, blue); }
    static std::string version() {
        return reinterpret_cast<const char *>(PFNGLGETSTRINGPROC(Named("glGetString"))(GL_VERSION));
    }
    static bool isEs() { return version().starts_with("OpenGL ES"); }
};

// Each draws a green triangle over the whole surface, in its own way.
void drawByShaders() {
    constexpr const char *texts[] = {"#version 330 core\nvoid main() {"
                                     "gl_Position = vec4(gl_VertexID == 1 ? 3 : -1, gl_VertexID == 2 ? 3 : -1, 0, 1);}",
                                     "#version 330 core\nout vec4 c; void main() { c = vec4(0, 1, 0, 1); }"};
    const GLuint program = PFNGLCREATEPROGRAMPROC(Named("glCreateProgram"))();
    for (int i = 0; i < 2; ++i) {
        const GLuint shader = PFNGLCREATESHADERPROC(Named("glCreateShader"))(i ? GL_FRAGMENT_SHADER : GL_VERTEX_SHADER);
        PFNGLSHADERSOURCEPROC(Named("glShaderSource"))(shader, 1, &texts[i], nullptr);
        PFNGLCOMPILESHADERPROC(Named("glCompileShader"))(shader);
        PFNGLATTACHSHADERPROC(Named("glAttachShader"))(program, shader);
    }
    PFNGLLINKPROGRAMPROC(Named("glLinkProgram"))(program);
    PFNGLUSEPROGRAMPROC(Named("glUseProgram"))(program);
    GLuint array = 0;
    PFNGLGENVERTEXARRAYSPROC(Named("glGenVertexArrays"))(1, &array);
    PFNGLBINDVERTEXARRAYPROC(Named("glBindVertexArray"))(array);
    PFNGLDRAWARRAYSPROC(Named("glDrawArrays"))(GL_TRIANGLES, 0, 3);
}

void drawOneByOne() {
    using Begin = void(GLenum);
    using Three = void(float, float, float);
    Begin *const begin = Named("glBegin");
    Three *const color = Named("glColor3f"), *const vertex = Named("glVertex3f");
    void (*const end)() = Named("glEnd");
    begin(GL_TRIANGLES);
    color(0, 1, 0);
    for (const auto &[x, y] : {std::pair(-1.f, -1.f), {3.f, -1.f}, {-1.f, 3.f}})
        vertex(x, y, 0);
    end();
}

// What programs other than those of zelvane run --opengl find.
class WithoutOpenGl : public DesktopOpenGl, public testing::WithParamInterface<std::pair<std::string, std::string>> {};

} // namespace

TEST_P(WithoutOpenGl, NothingOffersIt) {
    begin(GetParam().first.c_str(), GetParam().second.c_str());
    EXPECT_FALSE(eglBindAPI(EGL_OPENGL_API));
    EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
    EXPECT_EQ(eglQueryAPI(), EGLenum(EGL_OPENGL_ES_API));
    EXPECT_STREQ(eglQueryString(m_egl, EGL_CLIENT_APIS), "OpenGL_ES");
    EGLint bits = 0;
    EXPECT_TRUE(eglGetConfigAttrib(m_egl, m_config, EGL_RENDERABLE_TYPE, &bits));
    EXPECT_FALSE(bits & EGL_OPENGL_BIT);
    EXPECT_FALSE(eglGetProcAddress("glVertex3f"));
}

INSTANTIATE_TEST_SUITE_P(Variables, WithoutOpenGl, testing::Values(std::pair("1", "0"), std::pair("0", "1")));

TEST_F(DesktopOpenGl, DrawsInEachProfile) {
    begin();
    EXPECT_STREQ(eglQueryString(m_egl, EGL_CLIENT_APIS), "OpenGL OpenGL_ES");
    const struct {
        Attributes attributes;
        GLint profile, flags;
        void (*draw)();
    } rows[] = {
        {{EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 3}, core, 0, drawByShaders},
        {{EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 1}, core, 0, drawByShaders},
        {{EGL_CONTEXT_MAJOR_VERSION, 4, EGL_CONTEXT_FLAGS_KHR, allFlags}, core, allFlags, drawByShaders},
        {{EGL_CONTEXT_MAJOR_VERSION, 4, EGL_CONTEXT_OPENGL_FORWARD_COMPATIBLE, EGL_TRUE},
         core,
         GL_CONTEXT_FLAG_FORWARD_COMPATIBLE_BIT,
         drawByShaders},
        {{EGL_CONTEXT_MAJOR_VERSION, 4, EGL_CONTEXT_OPENGL_PROFILE_MASK, compatible}, compatible, 0, drawOneByOne},
        {{}, compatible, 0, drawOneByOne},
    };
    const EGLSurface surface = makeSurface(makeWindow());
    for (const auto &row : rows) {
        SCOPED_TRACE(&row - rows);
        const EGLContext context = create(EGL_OPENGL_API, row.attributes);
        ASSERT_NE(context, EGL_NO_CONTEXT) << std::hex << eglGetError();
        bind(surface, context);
        EGLint value = 0;
        EXPECT_TRUE(eglQueryContext(m_egl, context, EGL_CONTEXT_CLIENT_TYPE, &value));
        EXPECT_EQ(value, EGL_OPENGL_API);
        EXPECT_FALSE(isEs()) << version();
        GLint profile = 0, flags = 0;
        const PFNGLGETINTEGERVPROC getIntegerv = Named("glGetIntegerv");
        getIntegerv(profileMask, &profile);
        getIntegerv(GL_CONTEXT_FLAGS, &flags);
        EXPECT_EQ(profile, row.profile);
        EXPECT_EQ(flags, row.flags);
        EXPECT_EQ(cleared(1, 0, 0), red);
        row.draw();
        EXPECT_EQ(pixel(), green);
        EXPECT_EQ(PFNGLGETERRORPROC(Named("glGetError"))(), GLenum(GL_NO_ERROR));
        EXPECT_EQ(shownAfterSwap(surface, 5, 5), green);
        EXPECT_TRUE(eglDestroyContext(m_egl, context));
    }
}

TEST_F(DesktopOpenGl, RefusesWhatEglForbids) {
    begin();
    const EGLContext es = createEs();
    const struct {
        const char *what;
        Attributes attributes;
        EGLint error;
        EGLContext share = EGL_NO_CONTEXT;
    } rows[] = {
        {"no such version", {EGL_CONTEXT_MAJOR_VERSION, 3, EGL_CONTEXT_MINOR_VERSION, 4}, EGL_BAD_MATCH},
        {"no such major version", {EGL_CONTEXT_MAJOR_VERSION, 5}, EGL_BAD_MATCH},
        {"two profiles",
         {EGL_CONTEXT_MAJOR_VERSION, 4, EGL_CONTEXT_OPENGL_PROFILE_MASK, core | compatible},
         EGL_BAD_MATCH},
        {"nothing deprecated",
         {EGL_CONTEXT_MAJOR_VERSION, 2, EGL_CONTEXT_OPENGL_FORWARD_COMPATIBLE, EGL_TRUE},
         EGL_BAD_MATCH},
        {"an unknown flag", {EGL_CONTEXT_FLAGS_KHR, 0x100}, EGL_BAD_ATTRIBUTE},
        {"an unknown attribute", {EGL_WIDTH, 1}, EGL_BAD_ATTRIBUTE},
        {"an attribute without a value", {EGL_SAMPLE_BUFFERS}, EGL_BAD_ATTRIBUTE},
        {"a context of OpenGL ES to share with", {}, EGL_BAD_CONTEXT, es},
    };
    for (const auto &[what, attributes, error, share] : rows) {
        EXPECT_EQ(create(EGL_OPENGL_API, attributes, share), EGL_NO_CONTEXT) << what;
        EXPECT_EQ(eglGetError(), error) << what;
    }
    const EGLContext desktop = createCore();
    EXPECT_EQ(create(EGL_OPENGL_ES_API, {EGL_CONTEXT_MAJOR_VERSION, 3}, desktop), EGL_NO_CONTEXT);
    EXPECT_EQ(eglGetError(), EGL_BAD_CONTEXT);

    // An image is of OpenGL ES, and its handle never reaches the host.
    bind(EGL_NO_SURFACE, desktop);
    PFNGLBINDTEXTUREPROC(Named("glBindTexture"))(GL_TEXTURE_2D, 1);
    const auto texture = reinterpret_cast<EGLClientBuffer>(1);
    EXPECT_EQ(eglCreateImage(m_egl, desktop, EGL_GL_TEXTURE_2D, texture, nullptr), EGL_NO_IMAGE);
    EXPECT_EQ(eglGetError(), EGL_BAD_MATCH);
    using Target = void(GLenum, void *);
    static_cast<Target *>(Named("glEGLImageTargetTexture2DOES"))(GL_TEXTURE_2D, m_x);
}

TEST_F(DesktopOpenGl, DevicesWithoutItRefuse) {
    begin("1", "1", "TI PandaBoard");
    EXPECT_EQ(create(EGL_OPENGL_API, {}), EGL_NO_CONTEXT);
    EXPECT_EQ(eglGetError(), EGL_BAD_CONFIG);
}

TEST_F(DesktopOpenGl, ThreadsSwitchBetweenTheApis) {
    begin();
    const auto switchTo = [&](bool es, EGLSurface surface, EGLContext context) {
        bind(surface, context);
        EXPECT_EQ(isEs(), es);
        EXPECT_EQ(eglGetCurrentContext(), context) << "of either API, a thread has one";
        EXPECT_EQ(es ? cleared(1, 0, 0) : cleared(0, 1, 0), es ? red : green);
        EXPECT_TRUE(eglWaitClient());
        const EGLSync sync = eglCreateSync(m_egl, EGL_SYNC_FENCE, nullptr);
        EXPECT_EQ(eglClientWaitSync(m_egl, sync, EGL_SYNC_FLUSH_COMMANDS_BIT, EGL_FOREVER), EGL_CONDITION_SATISFIED);
        EXPECT_TRUE(eglDestroySync(m_egl, sync));
    };
    const auto work = [&] {
        EXPECT_EQ(eglQueryAPI(), EGLenum(EGL_OPENGL_ES_API));
        const EGLContext es = createEs(), desktop = createCore();
        EXPECT_EQ(eglQueryAPI(), EGLenum(EGL_OPENGL_API));
        const EGLSurface first = makePbuffer(), second = makePbuffer();
        for (int round = 0; round < 3; ++round) {
            switchTo(true, first, es);
            switchTo(false, second, desktop);
            switchTo(false, first, desktop);
        }
        bind(first, desktop);
        EXPECT_EQ(pixel(), green);
        EXPECT_TRUE(eglReleaseThread());
        EXPECT_EQ(eglQueryAPI(), EGLenum(EGL_OPENGL_ES_API));
        EXPECT_EQ(eglGetCurrentContext(), EGL_NO_CONTEXT);
        EXPECT_TRUE(eglDestroyContext(m_egl, desktop) && eglDestroyContext(m_egl, es));
    };
    work();
    std::jthread one(work), other(work);
}

TEST_F(DesktopOpenGl, ContextsShareWithTheirKind) {
    begin();
    const EGLContext first = createCore();
    const EGLContext second = create(EGL_OPENGL_API, {}, first);
    bind(EGL_NO_SURFACE, first);
    GLuint name = 0;
    PFNGLGENTEXTURESPROC(Named("glGenTextures"))(1, &name);
    const GlFunctions gl;
    gl.bindTexture(GL_TEXTURE_2D, name);
    // The error of a context stays its own while others are current.
    gl.bindTexture(GL_NONE, name);
    bind(EGL_NO_SURFACE, second);
    EXPECT_TRUE(gl.isTexture(name));
    EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
    bind(EGL_NO_SURFACE, first);
    EXPECT_EQ(gl.getError(), GLenum(GL_INVALID_ENUM));

    // A context is not touched by the first bind of another, which would settle its viewport.
    const EGLContext unbound = createCore();
    bind(makePbuffer(), createCore(unbound));
    bind(makeSurface(makeWindow()), unbound);
    GLint viewport[4] = {};
    PFNGLGETINTEGERVPROC(Named("glGetIntegerv"))(GL_VIEWPORT, viewport);
    EXPECT_EQ(viewport[2], 64);
}

// In either API; that OpenGL is on offer changes nothing for the contexts of OpenGL ES.
TEST_F(DesktopOpenGl, ReadsAndTexturesComeFromTheirOwnSurface) {
    begin();
    const GlFunctions gl;
    for (const EGLContext context : {createEs(), createCore()}) {
        const EGLSurface window = makeSurface(makeWindow()), pbuffer = makePbuffer();
        bind(pbuffer, context);
        cleared(0, 1, 0);
        bind(window, context);
        cleared(1, 0, 0);
        bindBoth(window, pbuffer, context);
        EXPECT_EQ(pixel(), green);
        bindBoth(pbuffer, window, context);
        EXPECT_EQ(pixel(), red);
        bind(window, context);
        EXPECT_EQ(pixel(), red);

        GLuint texture = 0, framebuffer = 0;
        PFNGLGENTEXTURESPROC(Named("glGenTextures"))(1, &texture);
        gl.bindTexture(GL_TEXTURE_2D, texture);
        EXPECT_TRUE(eglBindTexImage(m_egl, pbuffer, EGL_BACK_BUFFER)) << std::hex << eglGetError();
        EXPECT_EQ(pixel(), red) << "what is read from stays";
        PFNGLGENFRAMEBUFFERSPROC(Named("glGenFramebuffers"))(1, &framebuffer);
        PFNGLBINDFRAMEBUFFERPROC(Named("glBindFramebuffer"))(GL_FRAMEBUFFER, framebuffer);
        PFNGLFRAMEBUFFERTEXTURE2DPROC(Named("glFramebufferTexture2D"))
        (GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture, 0);
        EXPECT_EQ(pixel(), green);
        EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
    }
}
