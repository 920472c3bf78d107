#include "x11/gles1_fixture.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string contents(const std::filesystem::path &file) {
    std::ifstream input(file);
    return {std::istreambuf_iterator<char>(input), {}};
}

class Gles1State : public Gles1 {
protected:
    std::string text(GLenum name) { return reinterpret_cast<const char *>(ES(glGetString)(name)); }
};

constexpr const char *device = R"(<profile><vendor>Maker</vendor><renderer>Chip</renderer><es version="1">
<extension>GL_OES_draw_texture</extension><extension>OES_matrix_palette</extension>
<extension>OES_stencil_wrap</extension><extension>GL_OES_EGL_image_external</extension>
<max_lights>8</max_lights><max_clip_planes>1</max_clip_planes><max_texture_units>2</max_texture_units>
<max_modelview_stack_depth>100000</max_modelview_stack_depth>
<smooth_point_size_range><min>1</min><max>8</max></smooth_point_size_range>
<compressed_texture_format>36196</compressed_texture_format><compressed_texture_format>35840</compressed_texture_format>
<implementation_color_read_type>33635</implementation_color_read_type></es></profile>)";

} // namespace

TEST_F(Gles1State, TellsWhatTheDeviceTellsAsFarAsTheHostCarriesIt) {
    start(device);
    EXPECT_TRUE(text(GL_VERSION).starts_with("OpenGL ES-CM 1.1 ")) << text(GL_VERSION);
    EXPECT_EQ(text(GL_VENDOR), "Maker");
    EXPECT_EQ(text(GL_RENDERER), "Chip");
    EXPECT_EQ(text(GL_EXTENSIONS), "GL_OES_draw_texture GL_OES_stencil_wrap");
    EXPECT_EQ(integer(GL_MAX_CLIP_PLANES), 1);
    EXPECT_EQ(integer(GL_MAX_TEXTURE_UNITS), 2);
    EXPECT_LT(integer(GL_MAX_MODELVIEW_STACK_DEPTH), 100000);
    EXPECT_EQ(integer(GL_NUM_COMPRESSED_TEXTURE_FORMATS), 1);
    EXPECT_EQ(integer(GL_COMPRESSED_TEXTURE_FORMATS), GL_ETC1_RGB8_OES);
    EXPECT_EQ(integer(GL_IMPLEMENTATION_COLOR_READ_FORMAT_OES), GL_RGB);
    GLfixed range[2] = {};
    ES(glGetFixedv)(GL_SMOOTH_POINT_SIZE_RANGE, range);
    EXPECT_EQ(range[1], 8 * 65536);
    EXPECT_EQ(ES(glGetString)(0x8B8C), nullptr) << "a shading language";
    EXPECT_EQ(error(), static_cast<GLenum>(GL_INVALID_ENUM));
}

TEST_F(Gles1State, TellsAllItCarriesWithoutADevice) {
    start("<profile><es version=\"2\"/></profile>");
    const std::string extensions = text(GL_EXTENSIONS);
    for (const char *name : {"GL_OES_framebuffer_object", "GL_OES_compressed_paletted_texture", "GL_OES_query_matrix"})
        EXPECT_NE(extensions.find(name), std::string::npos) << name;
    for (const char *name : {"matrix_palette", "EGL_image", "GL_ARB_"})
        EXPECT_EQ(extensions.find(name), std::string::npos) << name;
    EXPECT_GE(integer(GL_NUM_COMPRESSED_TEXTURE_FORMATS), 11);
    EXPECT_GE(integer(GL_MAX_TEXTURE_UNITS), 2);
}

TEST_F(Gles1State, FixedPointScalesNumbersAndNotEnumerants) {
    start();
    const GLfixed half = 32768;
    ES(glFogx)(GL_FOG_MODE, GL_LINEAR);
    ES(glFogx)(GL_FOG_END, half);
    ES(glTexEnvx)(GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE, GL_DECAL);
    ES(glTexEnvx)(GL_TEXTURE_ENV, GL_RGB_SCALE, 2 * 65536);
    ES(glTexEnvx)(GL_POINT_SPRITE_OES, GL_COORD_REPLACE_OES, GL_TRUE);
    ES(glTexParameterx)(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    ES(glTexParameterx)(GL_TEXTURE_2D, GL_GENERATE_MIPMAP, GL_TRUE);
    const GLfixed color[] = {half, 0, 65536, half};
    ES(glLightModelxv)(GL_LIGHT_MODEL_AMBIENT, color);
    ES(glClearDepthx)(half);
    ES(glDepthRangex)(half / 2, half);
    ES(glPolygonOffsetx)(-half, 65536);

    const struct {
        GLenum name;
        GLfloat number;
        GLfixed fixed;
    } states[] = {
        {GL_FOG_MODE, GL_LINEAR, GL_LINEAR},
        {GL_FOG_END, 0.5f, half},
        {GL_LIGHT_MODEL_AMBIENT, 0.5f, half},

        {GL_DEPTH_CLEAR_VALUE, 0.5f, half},
        {GL_DEPTH_RANGE, 0.25f, half / 2},

        {GL_POLYGON_OFFSET_FACTOR, -0.5f, -half},
        {GL_DEPTH_TEST, 0, 0},
        {GL_DITHER, 1, 65536},
    };
    for (const auto &row : states) {
        GLfloat numbers[4] = {9};
        GLfixed fixed[4] = {9};
        ES(glGetFloatv)(row.name, numbers);
        ES(glGetFixedv)(row.name, fixed);
        EXPECT_EQ(numbers[0], row.number) << std::hex << row.name;
        EXPECT_EQ(fixed[0], row.fixed) << std::hex << row.name;
    }
    GLfixed read[4] = {};
    const auto first = [&](auto get, GLenum target, GLenum name) {
        get(target, name, read);
        return read[0];
    };
    EXPECT_EQ(first(ES(glGetTexEnvxv), GL_TEXTURE_ENV, GL_TEXTURE_ENV_MODE), GL_DECAL);
    EXPECT_EQ(first(ES(glGetTexEnvxv), GL_TEXTURE_ENV, GL_RGB_SCALE), 2 * 65536);
    EXPECT_EQ(first(ES(glGetTexEnvxv), GL_POINT_SPRITE_OES, GL_COORD_REPLACE_OES), GL_TRUE);
    EXPECT_EQ(first(ES(glGetTexParameterxv), GL_TEXTURE_2D, GL_TEXTURE_WRAP_S), GL_CLAMP_TO_EDGE);
    EXPECT_EQ(first(ES(glGetTexParameterxv), GL_TEXTURE_2D, GL_GENERATE_MIPMAP), GL_TRUE);
    const GLfixed plane[] = {65536, 0, -65536, half};
    ES(glClipPlanex)(GL_CLIP_PLANE1, plane);
    ES(glGetClipPlanex)(GL_CLIP_PLANE1, read);
    EXPECT_TRUE(std::ranges::equal(plane, read));
}

TEST_F(Gles1State, TellsMatricesInItsOwnForms) {
    start();
    ES(glMatrixMode)(GL_PROJECTION);
    ES(glFrustumx)(-65536, 65536, -65536, 65536, 65536, 3 * 65536);
    GLfixed mantissa[16] = {};
    GLint exponent[16] = {};
    EXPECT_EQ(ES(glQueryMatrixxOES)(mantissa, exponent), 0u);
    EXPECT_EQ(mantissa[10], -32768); // -2
    EXPECT_EQ(exponent[10], 2);
    GLint bits[16] = {};
    ES(glGetIntegerv)(GL_PROJECTION_MATRIX_FLOAT_AS_INT_BITS_OES, bits);
    EXPECT_EQ(bits[10], static_cast<GLint>(0xC0000000));
}

TEST_F(Gles1State, WhatIsNotOfEsIsAnError) {
    constexpr GLenum texture3d = 0x806F;
    constexpr GLenum quads = 7;
    start();
    GLfixed fixed[4] = {7, 7, 7, 7};
    GLuint object = 0;
    ES(glGenVertexArraysOES)(1, &object);
    const struct {
        const char *what;
        GLenum error;
        std::function<void()> call;
    } cases[] = {
        {"a capability of the desktop", GL_INVALID_ENUM,
         [&] {
             ES(glEnable)
             (texture3d);
         }},
        {"asking for a capability of the desktop", GL_INVALID_ENUM,
         [&] {
             ES(glIsEnabled)
             (texture3d);
         }},
        {"no array", GL_INVALID_ENUM,
         [&] {
             ES(glEnableClientState)
             (GL_FOG);
         }},
        {"a mode of the desktop", GL_INVALID_ENUM,
         [&] {
             ES(glDrawArrays)
             (quads, 0, 4);
         }},
        {"a type that vertices lack", GL_INVALID_ENUM,
         [&] {
             ES(glVertexPointer)
             (2, GL_UNSIGNED_BYTE, 0, fixed);
         }},
        {"a negative stride", GL_INVALID_VALUE,
         [&] {
             ES(glColorPointer)
             (4, GL_FIXED, -1, fixed);
         }},
        {"client memory in an object", GL_INVALID_OPERATION,
         [&] {
             ES(glBindVertexArrayOES)(object);
             ES(glVertexPointer)(2, GL_FIXED, 0, fixed);
             ES(glBindVertexArrayOES)(0);
         }},
        {"a vertex out of reach", GL_OUT_OF_MEMORY,
         [&] {
             const GLuint index = ~0u;
             ES(glVertexPointer)(2, GL_FIXED, 0, fixed);
             ES(glEnableClientState)(GL_VERTEX_ARRAY);
             ES(glDrawElements)(GL_POINTS, 1, GL_UNSIGNED_INT, &index);
             ES(glDisableClientState)(GL_VERTEX_ARRAY);
         }},
        {"no parameter", GL_INVALID_ENUM,
         [&] {
             ES(glLightxv)
             (GL_LIGHT0, GL_FOG_MODE, fixed);
         }},
        {"a vector as a number", GL_INVALID_ENUM,
         [&] {
             ES(glFogx)
             (GL_FOG_COLOR, 0);
         }},
        {"a parameter of the desktop", GL_INVALID_ENUM,
         [&] {
             ES(glTexParameteri)
             (GL_TEXTURE_2D, 0x8072, GL_REPEAT);
         }},
        {"one side's material", GL_INVALID_ENUM,
         [&] {
             ES(glMaterialf)
             (GL_FRONT, GL_SHININESS, 1);
         }},
        {"no light", GL_INVALID_ENUM,
         [&] {
             ES(glGetLightxv)
             (GL_FOG, GL_AMBIENT, fixed);
         }},
        {"reading a mapping", GL_INVALID_ENUM,
         [&] {
             ES(glMapBufferOES)
             (GL_ARRAY_BUFFER, 0x88B8);
         }},
        {"a mode of the desktop's generation", GL_INVALID_ENUM,
         [&] {
             ES(glTexGeniOES)
             (GL_TEXTURE_GEN_STR_OES, GL_TEXTURE_GEN_MODE_OES, 0x2400);
         }},
    };
    for (const auto &row : cases) {
        row.call();
        EXPECT_EQ(error(), row.error) << row.what;
        EXPECT_EQ(error(), static_cast<GLenum>(GL_NO_ERROR)) << row.what;
    }
    EXPECT_EQ(fixed[0], 7) << "an output of a failed call";
}

TEST_F(Gles1State, ServesTheNamesOfEs1Alone) {
    start();
    for (const char *name :
         {"glClear", "glLoadIdentity", "glTranslatex", "glDrawTexfOES", "glPointSizePointerOES", "glBindFramebufferOES",
          "glClipPlanexTWG", "zvToggleWireframe", "zvReadPixels", "Zelvane_GetTexLevelParameteriv"})
        EXPECT_NE(getExtProcAddress(name), nullptr) << name;
    for (const char *name : {"glCreateShader", "glBindFramebuffer", "glBegin", "glFrustum", "glWeightPointerOES",
                             "glCurrentPaletteMatrixOES", "zvGetOpenGLShaderSource", "glNoSuchEntry", ""})
        EXPECT_EQ(getExtProcAddress(name), nullptr) << name;
    EXPECT_EQ(getExtProcAddress(nullptr), nullptr);

    const auto loaded = reinterpret_cast<decltype(&glGetString)>(symbol("glGetString"));
    EXPECT_EQ(reinterpret_cast<const char *>(loaded(GL_VERSION)), text(GL_VERSION));
}

TEST_F(Gles1State, RefusesACoreContext) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(start("", true), nullptr);
    const std::string line = "no OpenGL ES 1 context: the host's context is a core one, and ES 1 needs a compatibility "
                             "context";
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "(Error) " + line + '\n');
    EXPECT_EQ(posted().header.type, static_cast<uint32_t>(ZV_LOG_ERROR));
    EXPECT_EQ(posted().text.text, line);
    EXPECT_EQ(ES(glGetError)(), static_cast<GLenum>(GL_NO_ERROR));
    // Calls without a context of this library reach the host or nothing, and never end the process.
    ES(glDrawTexiOES)(0, 0, 0, 4, 4);
    ES(glPointSizePointerOES)(GL_FLOAT, 0, nullptr);
    ES(glDrawArrays)(GL_POINTS, 0, 1);
}

TEST(Gles1Tables, AreWhatTheScriptMakes) {
    const std::filesystem::path made = std::filesystem::path(getenv("TMPDIR")) / "made";
    std::filesystem::create_directory(made);
    ASSERT_EQ(std::system((ZELVANE_ES_EXPORTS_SCRIPT " --es1 " + made.string()).c_str()), 0);
    EXPECT_FALSE(contents(made / "entries.def").empty());
    EXPECT_TRUE(contents(made / "entries.def") == contents(std::filesystem::path(ZELVANE_ES1_DATA) / "entries.def"));
}
