#define GL_GLEXT_PROTOTYPES
#include "x11/picture_fixture.h"

#include <GLES2/gl2ext.h>

namespace {

std::string profileText;

struct Enumerant {
    GLenum name;
    int version; // of ES
};

// What a context of a version answers, with the names that desktop OpenGL lacks or has lost.
constexpr Enumerant enumerants[] = {
    {GL_ACTIVE_TEXTURE, 20},
    {GL_ALIASED_LINE_WIDTH_RANGE, 20},
    {GL_ALIASED_POINT_SIZE_RANGE, 20},
    {GL_ALPHA_BITS, 20},
    {GL_ARRAY_BUFFER_BINDING, 20},
    {GL_BLEND_COLOR, 20},
    {GL_BLUE_BITS, 20},
    {GL_COLOR_WRITEMASK, 20},
    {GL_COMPRESSED_TEXTURE_FORMATS, 20},
    {GL_CULL_FACE_MODE, 20},
    {GL_DEPTH_BITS, 20},
    {GL_DEPTH_RANGE, 20},
    {GL_DITHER, 20},
    {GL_FRAMEBUFFER_BINDING, 20},
    {GL_GENERATE_MIPMAP_HINT, 20},
    {GL_GREEN_BITS, 20},
    {GL_IMPLEMENTATION_COLOR_READ_FORMAT, 20},
    {GL_IMPLEMENTATION_COLOR_READ_TYPE, 20},
    {GL_LINE_WIDTH, 20},
    {GL_MAX_COMBINED_TEXTURE_IMAGE_UNITS, 20},
    {GL_MAX_CUBE_MAP_TEXTURE_SIZE, 20},
    {GL_MAX_FRAGMENT_UNIFORM_VECTORS, 20},
    {GL_MAX_RENDERBUFFER_SIZE, 20},
    {GL_MAX_TEXTURE_IMAGE_UNITS, 20},
    {GL_MAX_TEXTURE_SIZE, 20},
    {GL_MAX_VARYING_VECTORS, 20},
    {GL_MAX_VERTEX_ATTRIBS, 20},
    {GL_MAX_VERTEX_TEXTURE_IMAGE_UNITS, 20},
    {GL_MAX_VERTEX_UNIFORM_VECTORS, 20},
    {GL_MAX_VIEWPORT_DIMS, 20},
    {GL_NUM_COMPRESSED_TEXTURE_FORMATS, 20},
    {GL_NUM_SHADER_BINARY_FORMATS, 20},
    {GL_POLYGON_OFFSET_FACTOR, 20},
    {GL_RED_BITS, 20},
    {GL_SAMPLES, 20},
    {GL_SAMPLE_BUFFERS, 20},
    {GL_SAMPLE_COVERAGE_VALUE, 20},
    {GL_SCISSOR_BOX, 20},
    {GL_SHADER_BINARY_FORMATS, 20},
    {GL_SHADER_COMPILER, 20},
    {GL_STENCIL_BACK_FAIL, 20},
    {GL_STENCIL_BITS, 20},
    {GL_SUBPIXEL_BITS, 20},
    {GL_TEXTURE_BINDING_CUBE_MAP, 20},
    {GL_UNPACK_ALIGNMENT, 20},
    {GL_VIEWPORT, 20},
    {GL_TEXTURE_BINDING_EXTERNAL_OES, 20},
    {GL_COPY_READ_BUFFER_BINDING, 30},
    {GL_DRAW_BUFFER0, 30},
    {GL_FRAGMENT_SHADER_DERIVATIVE_HINT, 30},
    {GL_MAX_3D_TEXTURE_SIZE, 30},
    {GL_MAX_COMBINED_UNIFORM_BLOCKS, 30},
    {GL_MAX_ELEMENTS_INDICES, 30},
    {GL_MAX_ELEMENT_INDEX, 30},
    {GL_MAX_FRAGMENT_INPUT_COMPONENTS, 30},
    {GL_MAX_PROGRAM_TEXEL_OFFSET, 30},
    {GL_MAX_SAMPLES, 30},
    {GL_MAX_SERVER_WAIT_TIMEOUT, 30},
    {GL_MAX_TEXTURE_LOD_BIAS, 30},
    {GL_MAX_UNIFORM_BLOCK_SIZE, 30},
    {GL_MAX_VARYING_COMPONENTS, 30},
    {GL_MAX_VERTEX_OUTPUT_COMPONENTS, 30},
    {GL_NUM_PROGRAM_BINARY_FORMATS, 30},
    {GL_PIXEL_PACK_BUFFER_BINDING, 30},
    {GL_PROGRAM_BINARY_FORMATS, 30},
    {GL_READ_BUFFER, 30},
    {GL_READ_FRAMEBUFFER_BINDING, 30},
    {GL_SAMPLER_BINDING, 30},
    {GL_TRANSFORM_FEEDBACK_ACTIVE, 30},
    {GL_TRANSFORM_FEEDBACK_BINDING, 30},
    {GL_UNIFORM_BUFFER_OFFSET_ALIGNMENT, 30},
    {GL_UNPACK_SKIP_IMAGES, 30},
    {GL_VERTEX_ARRAY_BINDING, 30},
    {GL_ATOMIC_COUNTER_BUFFER_BINDING, 31},
    {GL_MAX_COMPUTE_SHARED_MEMORY_SIZE, 31},
    {GL_MAX_COLOR_TEXTURE_SAMPLES, 31},
    {GL_MAX_FRAMEBUFFER_WIDTH, 31},
    {GL_MAX_IMAGE_UNITS, 31},
    {GL_MAX_SAMPLE_MASK_WORDS, 31},
    {GL_MAX_SHADER_STORAGE_BLOCK_SIZE, 31},
    {GL_MAX_VERTEX_ATTRIB_BINDINGS, 31},
    {GL_MAX_VERTEX_ATTRIB_STRIDE, 31},
    {GL_PROGRAM_PIPELINE_BINDING, 31},
    {GL_CONTEXT_FLAGS, 32},
    {GL_DEBUG_GROUP_STACK_DEPTH, 32},
    {GL_FRAGMENT_INTERPOLATION_OFFSET_BITS, 32},
    {GL_LAYER_PROVOKING_VERTEX, 32},
    {GL_MAX_GEOMETRY_OUTPUT_VERTICES, 32},
    {GL_MAX_PATCH_VERTICES, 32},
    {GL_MAX_TESS_GEN_LEVEL, 32},
    {GL_MAX_TEXTURE_BUFFER_SIZE, 32},
    {GL_PRIMITIVE_BOUNDING_BOX, 32},
    {GL_RESET_NOTIFICATION_STRATEGY, 32},
    {GL_TEXTURE_BUFFER_BINDING, 32},
};

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
    for (const int version : {20, 32}) {
        start(version / 10, version % 10);
        for (const auto &[name, since] : enumerants) {
            if (since > version) continue;
            SCOPED_TRACE(testing::Message() << version << ' ' << std::hex << name);
            const auto integers = ask<GLint>(ES(glGetIntegerv), name);
            EXPECT_EQ(error(), static_cast<GLenum>(GL_NO_ERROR));
            const auto floats = ask<GLfloat>(ES(glGetFloatv), name);
            const auto booleans = ask<GLboolean>(ES(glGetBooleanv), name);
            EXPECT_EQ(error(), static_cast<GLenum>(GL_NO_ERROR));
            if (integers[0] == 77) continue;
            EXPECT_NE(floats[0], 77);
            EXPECT_EQ(booleans[0], floats[0] != 0);
        }
        deleteEsContext(std::exchange(current(), nullptr));
    }
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
    const struct {
        const char *extension, *entry;
    } cases[] = {
        {"GL_OES_mapbuffer", "glMapBufferOES"},
        {"GL_OES_vertex_array_object", "glGenVertexArraysOES"},
        {"GL_EXT_discard_framebuffer", "glDiscardFramebufferEXT"},
        {"GL_EXT_instanced_arrays", "glVertexAttribDivisorEXT"},
        {"GL_EXT_texture_storage", "glTexStorage2DEXT"},
        {"GL_OES_EGL_image", "glEGLImageTargetTexture2DOES"},
        {"GL_OES_element_index_uint", "glDrawElements"},
    };
    const std::string announced = reinterpret_cast<const char *>(ES(glGetString)(GL_EXTENSIONS));
    for (const auto &row : cases) {
        EXPECT_NE(announced.find(row.extension), std::string::npos) << row.extension;
        EXPECT_NE(getExtProcAddress(row.entry), nullptr) << row.entry;
    }
    const GLenum attachments[] = {GL_COLOR_EXT, GL_DEPTH_EXT, GL_STENCIL_EXT};
    ES(glDiscardFramebufferEXT)(GL_FRAMEBUFFER, 3, attachments);
    ES(glHint)(GL_GENERATE_MIPMAP_HINT, GL_NICEST);
    EXPECT_EQ(integer(GL_GENERATE_MIPMAP_HINT), GL_NICEST);
    EXPECT_EQ(error(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(BackEndQueries, TheSurfaceHasOneColourBufferNamedBack) {
    start(3, 0);
    const GLenum back = GL_BACK, none = GL_NONE;
    EXPECT_EQ(integer(GL_READ_BUFFER), GL_BACK);
    EXPECT_EQ(integer(GL_DRAW_BUFFER0), GL_BACK);
    ES(glDrawBuffers)(1, &none);
    EXPECT_EQ(integer(GL_DRAW_BUFFER0), GL_NONE);
    ES(glDrawBuffers)(1, &back);
    ES(glReadBuffer)(GL_BACK);
    EXPECT_EQ(integer(GL_DRAW_BUFFER0), GL_BACK);
    GLint bits = 0;
    ES(glGetFramebufferAttachmentParameteriv)
    (GL_FRAMEBUFFER, GL_BACK, GL_FRAMEBUFFER_ATTACHMENT_RED_SIZE, &bits);
    EXPECT_GE(bits, 8);
    EXPECT_EQ(error(), static_cast<GLenum>(GL_NO_ERROR));
    ES(glClearColor)(0, 1, 0, 1);
    ES(glClear)(GL_COLOR_BUFFER_BIT);
    EXPECT_EQ(pixel(3, 3), green);
}
