#include "x11/gles1_fixture.h"

#include <algorithm>
#include <cstdlib>

namespace {

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
    constexpr GLenum textureWrapR = 0x8072;
    constexpr GLenum readOnly = 0x88B8;
    constexpr GLint eyeLinear = 0x2400;
    constexpr GLenum unpackRowLength = 0x0CF2;
    start();
    GLfixed fixed[4] = {7, 7, 7, 7};
    const GLuint farIndex = ~0u;
    const auto expect = [&](GLenum wanted, const char *what, auto function, auto... arguments) {
        function(arguments...);
        EXPECT_EQ(error(), wanted) << what;
        EXPECT_EQ(error(), static_cast<GLenum>(GL_NO_ERROR)) << what;
    };
    expect(GL_INVALID_ENUM, "a capability of the desktop", ES(glEnable), texture3d);
    expect(GL_INVALID_ENUM, "asking for it", ES(glIsEnabled), texture3d);
    expect(GL_INVALID_ENUM, "no array", ES(glEnableClientState), GL_FOG);
    expect(GL_INVALID_ENUM, "a mode of the desktop", ES(glDrawArrays), quads, 0, 4);
    expect(GL_INVALID_ENUM, "a type that vertices lack", ES(glVertexPointer), 2, GL_UNSIGNED_BYTE, 0, fixed);
    expect(GL_INVALID_VALUE, "a negative stride", ES(glColorPointer), 4, GL_FIXED, -1, fixed);
    ES(glVertexPointer)(2, GL_FIXED, 0, fixed);
    ES(glEnableClientState)(GL_VERTEX_ARRAY);
    expect(GL_OUT_OF_MEMORY, "a far vertex", ES(glDrawElements), GL_POINTS, 1, GL_UNSIGNED_INT, &farIndex);
    expect(GL_INVALID_ENUM, "no parameter", ES(glLightxv), GL_LIGHT0, GL_FOG_MODE, fixed);
    expect(GL_INVALID_ENUM, "a vector as a number", ES(glFogx), GL_FOG_COLOR, 0);
    expect(GL_INVALID_ENUM, "a parameter of the desktop", ES(glTexParameteri), GL_TEXTURE_2D, textureWrapR, GL_REPEAT);
    expect(GL_INVALID_ENUM, "one side's material", ES(glMaterialf), GL_FRONT, GL_SHININESS, 1.0f);
    expect(GL_INVALID_ENUM, "no light", ES(glGetLightxv), GL_FOG, GL_AMBIENT, fixed);
    expect(GL_INVALID_ENUM, "no state", ES(glGetFixedv), 0xFFFFu, fixed);
    expect(GL_INVALID_ENUM, "reading a mapping", ES(glMapBufferOES), GL_ARRAY_BUFFER, readOnly);
    expect(GL_INVALID_ENUM, "a mode of the desktop", ES(glTexGeniOES), GL_TEXTURE_GEN_STR_OES, GL_TEXTURE_GEN_MODE_OES,
           eyeLinear);
    expect(GL_INVALID_ENUM, "storage of the desktop", ES(glPixelStorei), unpackRowLength, 4);
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
    const std::string made = getenv("TMPDIR");
    const std::string compare = " && cmp " + made + "/entries.def " ZELVANE_ES1_DATA "/entries.def";
    EXPECT_EQ(std::system((ZELVANE_ES_EXPORTS_SCRIPT " --es1 " + made + compare).c_str()), 0);
}
