// EGL images of desktop programs.
#include "client_fixture.h"

#include <GLES2/gl2ext.h>

#include <vector>

namespace {

const Pixel blue{0, 0, 255, 255};

// Set before the first function is looked up.
struct DesktopVariable {
    DesktopVariable() { setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1); }
};

class DesktopImages : DesktopVariable, public ClientTest {
protected:
    DesktopImages() {
        initialise(reinterpret_cast<EGLNativeDisplayType>(m_x));
        m_context = makeContext();
        eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, m_context);
        genFramebuffers(1, &m_framebuffer);
        bindFramebuffer(GL_FRAMEBUFFER, m_framebuffer);
    }
    void define(GLenum target, GLint level, const Pixel &texel) {
        const GLsizei size = 4 >> level;
        std::vector<Pixel> texels(16, texel);
        gl.texImage2D(target, level, GL_RGBA, size, size, 0, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
    }
    // A source of 4 x 4 texels. Level 1, if there is one, is green.
    GLuint makeSource(GLenum target) {
        GLuint name = 0;
        if (target == EGL_GL_RENDERBUFFER) {
            genRenderbuffers(1, &name);
            bindRenderbuffer(GL_RENDERBUFFER, name);
            renderbufferStorage(GL_RENDERBUFFER, GL_RGB565, 4, 4);
            attach(GL_RENDERBUFFER, name);
            drawn(0, 1, 0);
            return name;
        }
        genTextures(1, &name);
        const bool isCube = target != EGL_GL_TEXTURE_2D;
        gl.bindTexture(isCube ? GL_TEXTURE_CUBE_MAP : GL_TEXTURE_2D, name);
        for (GLint level = 0; level < 3; ++level) {
            for (GLenum face = 0; face < (isCube ? 6u : 1u); ++face)
                define(isCube ? GL_TEXTURE_CUBE_MAP_POSITIVE_X + face : GL_TEXTURE_2D, level,
                       (isCube ? face == 3 : level == 1) ? green : red);
        }
        return name;
    }
    EGLImage makeImage(GLenum target, GLuint name, EGLAttrib level = 0) {
        const EGLAttrib attributes[] = {EGL_GL_TEXTURE_LEVEL, level, EGL_NONE};
        return eglCreateImage(m_egl, m_context, target, reinterpret_cast<EGLClientBuffer>(uintptr_t{name}),
                              target == EGL_GL_RENDERBUFFER ? nullptr : attributes);
    }
    GLuint makeTexture(EGLImage image) {
        GLuint name = 0;
        genTextures(1, &name);
        gl.bindTexture(GL_TEXTURE_2D, name);
        targetTexture(GL_TEXTURE_2D, image);
        EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
        return name;
    }
    void attach(GLenum target, GLuint name) {
        if (target == GL_RENDERBUFFER) {
            framebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, target, name);
        } else {
            framebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, target, name, 0);
        }
    }
    Pixel drawn(float red, float green, float blue) {
        gl.clearColor(red, green, blue, 1);
        gl.clear(GL_COLOR_BUFFER_BIT);
        return pixel();
    }
    Pixel pixel() {
        Pixel read{1, 2, 3, 4};
        gl.readPixels(0, 0, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, read.data());
        EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
        return read;
    }

    EGLContext m_context = EGL_NO_CONTEXT;
    GLuint m_framebuffer = 0;
    GlFunctions gl;
    PFNGLGENTEXTURESPROC genTextures = Named("glGenTextures");
    PFNGLGENFRAMEBUFFERSPROC genFramebuffers = Named("glGenFramebuffers");
    PFNGLBINDFRAMEBUFFERPROC bindFramebuffer = Named("glBindFramebuffer");
    PFNGLGENRENDERBUFFERSPROC genRenderbuffers = Named("glGenRenderbuffers");
    PFNGLBINDRENDERBUFFERPROC bindRenderbuffer = Named("glBindRenderbuffer");
    PFNGLDELETERENDERBUFFERSPROC deleteRenderbuffers = Named("glDeleteRenderbuffers");
    PFNGLRENDERBUFFERSTORAGEPROC renderbufferStorage = Named("glRenderbufferStorage");
    PFNGLFRAMEBUFFERTEXTURE2DPROC framebufferTexture2D = Named("glFramebufferTexture2D");
    PFNGLFRAMEBUFFERRENDERBUFFERPROC framebufferRenderbuffer = Named("glFramebufferRenderbuffer");
    PFNGLGETFRAMEBUFFERATTACHMENTPARAMETERIVPROC ofAttachment = Named("glGetFramebufferAttachmentParameteriv");
    PFNGLGETRENDERBUFFERPARAMETERIVPROC ofRenderbuffer = Named("glGetRenderbufferParameteriv");
    PFNGLTEXPARAMETERIVPROC texParameteriv = Named("glTexParameteriv");
    PFNGLTEXSUBIMAGE2DPROC texSubImage2D = Named("glTexSubImage2D");
    PFNGLTEXPARAMETERIPROC texParameteri = Named("glTexParameteri");
    PFNGLGETINTEGERVPROC getIntegerv = Named("glGetIntegerv");
    PFNGLACTIVETEXTUREPROC activeTexture = Named("glActiveTexture");
    PFNGLGENERATEMIPMAPPROC generateMipmap = Named("glGenerateMipmap");
    PFNGLEGLIMAGETARGETTEXTURE2DOESPROC targetTexture = Named("glEGLImageTargetTexture2DOES");
    PFNGLEGLIMAGETARGETTEXSTORAGEEXTPROC targetStorage = Named("glEGLImageTargetTexStorageEXT");
    PFNGLTEXTUREVIEWOESPROC textureView = Named("glTextureViewOES");
    PFNGLEGLIMAGETARGETRENDERBUFFERSTORAGEOESPROC targetRenderbuffer = Named("glEGLImageTargetRenderbufferStorageOES");
};

} // namespace

TEST_F(DesktopImages, OutliveTheirSources) {
    constexpr GLenum face = EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X + 3;
    for (const auto &[target, level] :
         {std::pair<GLenum, EGLAttrib>{EGL_GL_TEXTURE_2D, 1}, {face, 0}, {EGL_GL_RENDERBUFFER, 0}}) {
        SCOPED_TRACE(target);
        const bool isRenderbuffer = target == EGL_GL_RENDERBUFFER;
        const GLuint source = makeSource(target);
        const EGLImage image = makeImage(target, source, level);
        ASSERT_NE(image, EGL_NO_IMAGE) << std::hex << eglGetError();
        (isRenderbuffer ? deleteRenderbuffers : gl.deleteTextures)(1, &source);
        const GLuint texture = makeTexture(image);
        attach(GL_TEXTURE_2D, texture);
        EXPECT_EQ(pixel(), green);
        EXPECT_EQ(drawn(0, 0, 1), blue);

        GLuint renderbuffer = 0;
        genRenderbuffers(1, &renderbuffer);
        bindRenderbuffer(GL_RENDERBUFFER, renderbuffer);
        attach(GL_RENDERBUFFER, renderbuffer);
        targetRenderbuffer(GL_RENDERBUFFER, image);
        EXPECT_TRUE(eglDestroyImage(m_egl, image));
        EXPECT_EQ(pixel(), blue) << "one storage";
        GLint kind = 0, name = 0, width = 0;
        ofAttachment(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_TYPE, &kind);
        ofAttachment(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_FRAMEBUFFER_ATTACHMENT_OBJECT_NAME, &name);
        ofRenderbuffer(GL_RENDERBUFFER, GL_RENDERBUFFER_WIDTH, &width);
        EXPECT_EQ(kind, GL_RENDERBUFFER);
        EXPECT_EQ(name, static_cast<GLint>(renderbuffer));
        EXPECT_EQ(width, 4 >> level);
        renderbufferStorage(GL_RENDERBUFFER, GL_RGBA4, 8, 8);
        EXPECT_EQ(drawn(1, 0, 0), red) << "of its own, and attached still";
        attach(GL_TEXTURE_2D, texture);
        EXPECT_EQ(pixel(), blue);
    }
}

TEST_F(DesktopImages, SiblingsShareUntilOneGetsAnotherImage) {
    const GLuint source = makeSource(EGL_GL_TEXTURE_2D);
    texParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
    attach(GL_TEXTURE_2D, source);
    const EGLImage image = makeImage(EGL_GL_TEXTURE_2D, source);
    const GLuint sibling = makeTexture(image);
    texParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    GLint bound = 0, filter = 0;
    getIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, static_cast<GLint>(sibling));
    EXPECT_EQ(drawn(0, 1, 0), green);
    attach(GL_TEXTURE_2D, sibling);
    EXPECT_EQ(pixel(), green);
    attach(GL_TEXTURE_2D, source);

    gl.bindTexture(GL_TEXTURE_2D, source);
    gl.getTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &filter);
    EXPECT_EQ(filter, GL_NEAREST) << "each has parameters of its own";
    activeTexture(GL_TEXTURE1);
    gl.bindTexture(GL_TEXTURE_2D, source);
    define(GL_TEXTURE_2D, 1, red);
    activeTexture(GL_TEXTURE0);
    getIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, static_cast<GLint>(source)) << "bound in every unit as before";
    EXPECT_EQ(pixel(), green) << "other levels stay";
    EXPECT_EQ(drawn(1, 0, 0), red) << "attached before, and not shared any more";
    gl.getTexParameteriv(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, &filter);
    EXPECT_EQ(filter, GL_NEAREST);
    attach(GL_TEXTURE_2D, sibling);
    EXPECT_EQ(pixel(), green);
    gl.bindTexture(GL_TEXTURE_2D, sibling);
    generateMipmap(GL_TEXTURE_2D);
    EXPECT_EQ(pixel(), green);
    EXPECT_EQ(gl.isTexture(sibling), GL_TRUE);

    targetStorage(GL_TEXTURE_2D, image, nullptr);
    EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
    EXPECT_EQ(pixel(), green);
    define(GL_TEXTURE_2D, 0, red);
    EXPECT_EQ(gl.getError(), GLenum(GL_INVALID_OPERATION)) << "such a storage cannot change";
    EXPECT_EQ(pixel(), green);

    GLuint view = 0;
    genTextures(1, &view);
    textureView(view, GL_TEXTURE_2D, sibling, GL_RGBA, 0, 1, 0, 1);
    attach(GL_TEXTURE_2D, view);
    EXPECT_EQ(gl.getError(), GLenum(GL_NO_ERROR));
    EXPECT_EQ(pixel(), green);
}

TEST_F(DesktopImages, OfWhatIsNoSourceAreRefused) {
    const GLuint source = makeSource(EGL_GL_TEXTURE_2D);
    const auto buffer = [](GLuint name) { return reinterpret_cast<EGLClientBuffer>(uintptr_t{name}); };
    const EGLContext unknown = reinterpret_cast<EGLContext>(99);
    GLuint empty = 0;
    genTextures(1, &empty);
    gl.bindTexture(GL_TEXTURE_2D, empty);
    const std::tuple<const char *, EGLContext, EGLenum, GLuint, std::array<EGLAttrib, 3>, EGLint> rows[] = {
        {"an unknown context", unknown, EGL_NONE, 0, {EGL_NONE}, EGL_BAD_CONTEXT},
        {"no target", EGL_NO_CONTEXT, EGL_NONE, 0, {EGL_NONE}, EGL_BAD_PARAMETER},
        {"the texture of the context's own", m_context, EGL_GL_TEXTURE_2D, 0, {EGL_NONE}, EGL_BAD_PARAMETER},
        {"no texture", m_context, EGL_GL_TEXTURE_2D, 77, {EGL_NONE}, EGL_BAD_PARAMETER},
        {"no images", m_context, EGL_GL_TEXTURE_2D, empty, {EGL_NONE}, EGL_BAD_PARAMETER},
        {"another kind", m_context, EGL_GL_TEXTURE_CUBE_MAP_POSITIVE_X, source, {EGL_NONE}, EGL_BAD_PARAMETER},
        {"no renderbuffer", m_context, EGL_GL_RENDERBUFFER, 77, {EGL_NONE}, EGL_BAD_PARAMETER},
        {"an attribute", m_context, EGL_GL_TEXTURE_2D, source, {EGL_WIDTH, 4, EGL_NONE}, EGL_BAD_PARAMETER},
        {"a level", m_context, EGL_GL_TEXTURE_2D, source, {EGL_GL_TEXTURE_LEVEL, 3, EGL_NONE}, EGL_BAD_MATCH},
        {"nothing", m_context, EGL_GL_TEXTURE_2D, source, {EGL_NONE}, EGL_SUCCESS},
        {"a sibling", m_context, EGL_GL_TEXTURE_2D, source, {EGL_NONE}, EGL_BAD_ACCESS},
    };
    EGLImage image = EGL_NO_IMAGE;
    for (const auto &[what, context, target, name, attributes, error] : rows) {
        const EGLImage made = eglCreateImage(m_egl, context, target, buffer(name), attributes.data());
        EXPECT_EQ(eglGetError(), error) << what;
        EXPECT_EQ(made != EGL_NO_IMAGE, error == EGL_SUCCESS) << what;
        if (made) image = made;
    }
    EXPECT_TRUE(eglDestroyImage(m_egl, image));
    EXPECT_FALSE(eglDestroyImage(m_egl, image));
    EXPECT_EQ(eglGetError(), EGL_BAD_PARAMETER);
    targetTexture(GL_TEXTURE_2D, image);
    EXPECT_EQ(gl.getError(), GLenum(GL_INVALID_VALUE)) << "a handle that is no more is not followed";
    const GLuint second = makeSource(EGL_GL_TEXTURE_2D);
    EXPECT_NE(makeImage(EGL_GL_TEXTURE_2D, second), EGL_NO_IMAGE);
    gl.deleteTextures(1, &second);
    EXPECT_NE(makeImage(EGL_GL_TEXTURE_2D, makeSource(EGL_GL_TEXTURE_2D)), EGL_NO_IMAGE)
        << "a texture that may have the host's name of one that was a sibling";
    gl.bindTexture(GL_TEXTURE_2D, source);
    const EGLImage again = makeImage(EGL_GL_TEXTURE_2D, source);
    EXPECT_NE(again, EGL_NO_IMAGE) << "the source is free again";
    eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, makeContext());
    makeSource(EGL_GL_TEXTURE_2D);
    targetTexture(GL_TEXTURE_2D, again);
    EXPECT_EQ(gl.getError(), GLenum(GL_INVALID_OPERATION)) << "of contexts that share nothing";
    EXPECT_NE(makeImage(EGL_GL_TEXTURE_2D, makeSource(EGL_GL_TEXTURE_2D)), again);
}

// Drawn as a whole, since fixed function draws it.
TEST_F(DesktopImages, OfEs1ShareToo) {
    eglMakeCurrent(m_egl, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    m_context = makeContext(EGL_NO_CONTEXT, 1);
    const EGLint size[] = {EGL_WIDTH, 8, EGL_HEIGHT, 8, EGL_NONE};
    bind(eglCreatePbufferSurface(m_egl, m_config, size), m_context);
    void (*const enable)(GLenum) = Named("glEnable");
    void (*const drawTexture)(GLint, GLint, GLint, GLint, GLint) = Named("glDrawTexiOES");
    enable(GL_TEXTURE_2D);
    const auto shown = [&](GLuint name) {
        const GLint crop[] = {0, 0, 2, 2};
        gl.bindTexture(GL_TEXTURE_2D, name);
        texParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_NEAREST);
        texParameteriv(GL_TEXTURE_2D, 0x8B9D, crop); // GL_TEXTURE_CROP_RECT_OES
        drawTexture(0, 0, 0, 8, 8);
        return pixel();
    };
    const GLuint source = makeSource(EGL_GL_TEXTURE_2D);
    const EGLImage image = makeImage(EGL_GL_TEXTURE_2D, source, 1);
    ASSERT_NE(image, EGL_NO_IMAGE) << std::hex << eglGetError();
    EXPECT_EQ(shown(source), red);
    const GLuint sibling = makeTexture(image), other = makeTexture(image);
    GLint bound = 0;
    getIntegerv(GL_TEXTURE_BINDING_2D, &bound);
    EXPECT_EQ(bound, static_cast<GLint>(other));
    EXPECT_EQ(shown(sibling), green);
    const std::vector<Pixel> texels(4, blue);
    texSubImage2D(GL_TEXTURE_2D, 0, 0, 0, 2, 2, GL_RGBA, GL_UNSIGNED_BYTE, texels.data());
    EXPECT_EQ(shown(other), blue) << "one storage";
    gl.bindTexture(GL_TEXTURE_2D, sibling);
    define(GL_TEXTURE_2D, 0, red);
    EXPECT_EQ(shown(sibling), red);
    gl.bindTexture(GL_TEXTURE_2D, source);
    define(GL_TEXTURE_2D, 0, green);
    EXPECT_EQ(shown(source), green) << "the source changes too";
    gl.deleteTextures(1, &source);
    EXPECT_TRUE(eglDestroyImage(m_egl, image));
    EXPECT_EQ(shown(other), blue) << "and outlives both";
    EXPECT_EQ(makeImage(EGL_GL_RENDERBUFFER, 1), EGL_NO_IMAGE);
    EXPECT_EQ(eglGetError(), EGL_BAD_MATCH);
}
