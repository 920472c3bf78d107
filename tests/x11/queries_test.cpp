#define GL_GLEXT_PROTOTYPES
#include "x11/picture_fixture.h"

#include <GLES2/gl2ext.h>

namespace {

std::string profileText;

// What desktop OpenGL has not, has lost, or has under another name.
constexpr GLenum enumerantsOf2[] = {GL_ALIASED_POINT_SIZE_RANGE,
                                    GL_ALPHA_BITS,
                                    GL_COMPRESSED_TEXTURE_FORMATS,
                                    GL_DEPTH_BITS,
                                    GL_GENERATE_MIPMAP_HINT,
                                    GL_IMPLEMENTATION_COLOR_READ_FORMAT,
                                    GL_IMPLEMENTATION_COLOR_READ_TYPE,
                                    GL_MAX_FRAGMENT_UNIFORM_VECTORS,
                                    GL_MAX_VARYING_VECTORS,
                                    GL_MAX_VERTEX_UNIFORM_VECTORS,
                                    GL_MAX_VIEWPORT_DIMS,
                                    GL_NUM_SHADER_BINARY_FORMATS,
                                    GL_SHADER_BINARY_FORMATS,
                                    GL_SHADER_COMPILER,
                                    GL_STENCIL_BITS,
                                    GL_TEXTURE_BINDING_EXTERNAL_OES};
constexpr GLenum enumerantsOf32[] = {GL_MAX_ELEMENT_INDEX,          GL_MAX_SAMPLES,
                                     GL_NUM_PROGRAM_BINARY_FORMATS, GL_READ_BUFFER,
                                     GL_VERTEX_ARRAY_BINDING,       GL_TRANSFORM_FEEDBACK_BINDING,
                                     GL_MAX_VERTEX_ATTRIB_STRIDE,   GL_MAX_IMAGE_UNITS,
                                     GL_PRIMITIVE_BOUNDING_BOX,     GL_MAX_TESS_GEN_LEVEL,
                                     GL_TEXTURE_BUFFER_BINDING};

class BackEndQueries : public BackEndPicture {
protected:
    // What a form answers, and a sentinel behind it.
    template <typename Value, typename Get>
    std::vector<double> ask(Get get, GLenum name) {
        std::vector<Value> values(256, Value(77));
        get(name, values.data());
        return {values.begin(), values.end()};
    }
};

} // namespace

extern "C" ZV_EXPORT const char *zvSettingsProfileText(const void *) {
    return profileText.c_str();
}

TEST_F(BackEndQueries, EveryFormAnswersEveryEnumerantOfTheVersion) {
    const auto check = [&](GLenum name) {
        SCOPED_TRACE(testing::Message() << std::hex << name);
        const auto integers = ask<GLint>(ES(glGetIntegerv), name);
        const auto floats = ask<GLfloat>(ES(glGetFloatv), name);
        const auto booleans = ask<GLboolean>(ES(glGetBooleanv), name);
        EXPECT_EQ(error(), GL_NO_ERROR);
        // An empty list leaves them all alone.
        EXPECT_EQ(integers[0] == 77, floats[0] == 77);
        EXPECT_EQ(booleans[0] != 0, floats[0] != 0);
    };
    start(2, 0);
    for (const GLenum name : enumerantsOf2)
        check(name);
    deleteEsContext(std::exchange(current(), nullptr));
    start(3, 2);
    for (const GLenum name : enumerantsOf32)
        check(name);
}

TEST_F(BackEndQueries, TheProfilesDeviceAnswersAsFarAsTheHostCarriesIt) {
    profileText = "<profile><vendor>Marrow Graphics</vendor><renderer>Flint 3</renderer>"
                  "<es version='2'><extension>GL_OES_rgb8_rgba8</extension></es>"
                  "<es version='3'><extension>OES_depth_texture</extension><extension>GL_XYZ_unknown</extension>"
                  "<extension>GL_EXT_discard_framebuffer</extension><max_texture_size>1024</max_texture_size>"
                  "<max_vertex_attribs>900</max_vertex_attribs>"
                  "<max_viewport_dims><width>999999</width><height>77</height></max_viewport_dims>"
                  "<aliased_point_size_range><min>1</min><max>2.5</max></aliased_point_size_range>"
                  "<min_program_texel_offset>-4</min_program_texel_offset>"
                  "<compressed_texture_format>36196</compressed_texture_format>"
                  "<compressed_texture_format>37492</compressed_texture_format></es></profile>";
    start(3, 0);
    const auto text = [&](GLenum name) { return std::string(reinterpret_cast<const char *>(ES(glGetString)(name))); };
    EXPECT_EQ(text(GL_VENDOR), "Marrow Graphics");
    EXPECT_EQ(text(GL_RENDERER), "Flint 3");
    EXPECT_EQ(text(GL_EXTENSIONS), "GL_OES_depth_texture GL_EXT_discard_framebuffer");
    EXPECT_EQ(integer(GL_NUM_EXTENSIONS), 2);
    EXPECT_EQ(integer(GL_MAX_TEXTURE_SIZE), 1024);
    EXPECT_LT(integer(GL_MAX_VERTEX_ATTRIBS), 900) << "the host's own";
    const auto dims = ask<GLint>(ES(glGetIntegerv), GL_MAX_VIEWPORT_DIMS);
    EXPECT_LT(dims[0], 999999);
    EXPECT_EQ(dims[1], 77);
    EXPECT_EQ(ask<GLfloat>(ES(glGetFloatv), GL_ALIASED_POINT_SIZE_RANGE)[1], 2.5);
    EXPECT_EQ(integer(GL_MIN_PROGRAM_TEXEL_OFFSET), -4);
    EXPECT_EQ(integer(GL_NUM_COMPRESSED_TEXTURE_FORMATS), 1) << "36196 needs an extension that is not announced";
    EXPECT_EQ(integer(GL_COMPRESSED_TEXTURE_FORMATS), 37492);
}

TEST_F(BackEndQueries, ExtensionsComeWithTheirEntryPoints) {
    start(2, 0);
    const std::string announced = reinterpret_cast<const char *>(ES(glGetString)(GL_EXTENSIONS));
    for (const char *name : {"GL_OES_mapbuffer", "GL_OES_vertex_array_object", "GL_EXT_discard_framebuffer"})
        EXPECT_NE(announced.find(name), std::string::npos) << name;
    for (const char *name : {"glMapBufferOES", "glGenVertexArraysOES", "glDiscardFramebufferEXT"})
        EXPECT_NE(getExtProcAddress(name), nullptr) << name;
    const GLenum attachments[] = {GL_COLOR_EXT, GL_DEPTH_EXT, GL_STENCIL_EXT};
    ES(glDiscardFramebufferEXT)(GL_FRAMEBUFFER, 3, attachments);
    ES(glHint)(GL_GENERATE_MIPMAP_HINT, GL_NICEST);
    EXPECT_EQ(integer(GL_GENERATE_MIPMAP_HINT), GL_NICEST);
}

TEST_F(BackEndQueries, TheSurfaceHasOneColourBufferNamedBack) {
    start(3, 0);
    const GLenum back = GL_BACK, none = GL_NONE;
    EXPECT_EQ(integer(GL_READ_BUFFER), GL_BACK);
    EXPECT_EQ(integer(GL_DRAW_BUFFER0), GL_BACK);
    ES(glDrawBuffers)(1, &none);
    EXPECT_EQ(integer(GL_DRAW_BUFFER0), GL_NONE);
    const GLenum two[] = {GL_BACK, GL_NONE};
    ES(glDrawBuffers)(2, two);
    EXPECT_EQ(error(), GL_INVALID_OPERATION);
    ES(glDrawBuffers)(1, &back);
    ES(glReadBuffer)(GL_BACK);
    EXPECT_EQ(integer(GL_DRAW_BUFFER0), GL_BACK);
    GLint bits = 0;
    ES(glGetFramebufferAttachmentParameteriv)
    (GL_FRAMEBUFFER, GL_BACK, GL_FRAMEBUFFER_ATTACHMENT_RED_SIZE, &bits);
    EXPECT_GE(bits, 8);
    EXPECT_EQ(error(), GL_NO_ERROR);
    ES(glClearColor)(0, 1, 0, 1);
    ES(glClear)(GL_COLOR_BUFFER_BIT);
    EXPECT_EQ(pixel(3, 3), green);
}
