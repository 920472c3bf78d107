#include "x11/gles1_fixture.h"

#include <algorithm>
#include <cstdlib>

#include "support/golden.h"

namespace {

class Gles1State : public Gles1 {
protected:
    std::string text(GLenum name) { return reinterpret_cast<const char *>(ES(glGetString)(name)); }
};

} // namespace

TEST_F(Gles1State, TellsWhatTheDeviceTellsAsFarAsTheHostCarriesIt) {
    start(golden("x11/data/es1_device.xml"));
    EXPECT_TRUE(text(GL_VERSION).starts_with("OpenGL ES-CM 1.1 ")) << text(GL_VERSION);
    EXPECT_EQ(text(GL_VENDOR) + ' ' + text(GL_RENDERER), "Maker Chip");
    EXPECT_EQ(text(GL_EXTENSIONS), "GL_OES_draw_texture GL_OES_matrix_palette GL_OES_stencil_wrap");
    const std::pair<GLenum, GLint> numbers[] = {
#include "x11/data/es1_device_numbers.def"
    };
    for (const auto &[name, number] : numbers)
        EXPECT_EQ(integer(name), number) << std::hex << name;
    EXPECT_LT(integer(GL_MAX_MODELVIEW_STACK_DEPTH), 100000);

    start("<profile><es version=\"2\"/></profile>"); // which has no block for ES 1
    EXPECT_NE(text(GL_EXTENSIONS).find("GL_OES_compressed_paletted_texture"), std::string::npos);
    for (const char *name : {"EGL_image", "GL_ARB_"})
        EXPECT_EQ(text(GL_EXTENSIONS).find(name), std::string::npos) << name;
    EXPECT_GE(integer(GL_NUM_COMPRESSED_TEXTURE_FORMATS), 11);
}

TEST_F(Gles1State, FixedPointScalesNumbersAndNotEnumerants) {
    start();
    const GLfixed half = 32768;
    ES(glFogx)(GL_FOG_MODE, GL_LINEAR);
    ES(glFogx)(GL_FOG_END, half);
    const GLfixed color[] = {half, 0, 65536, half};
    ES(glLightModelxv)(GL_LIGHT_MODEL_AMBIENT, color);
    ES(glClearDepthx)(half);
    ES(glDepthRangex)(half / 2, half);
    ES(glPolygonOffsetx)(-half, 65536);
    const std::tuple<GLenum, GLfloat, GLfixed> states[] = {
#include "x11/data/es1_states.def"
    };
    for (const auto &[name, number, fixed] : states) {
        GLfloat numbers[4] = {9};
        GLfixed fixeds[4] = {9};
        ES(glGetFloatv)(name, numbers);
        ES(glGetFixedv)(name, fixeds);
        EXPECT_EQ(std::pair(numbers[0], fixeds[0]), std::pair(number, fixed)) << std::hex << name;
    }
    GLfixed read[4] = {};
    const auto expectKept = [&](auto set, auto get, GLenum target, GLenum name, GLfixed value) {
        set(target, name, value);
        get(target, name, read);
        EXPECT_EQ(read[0], value) << std::hex << name;
    };
#define PARAMETER(set, get, target, name, value) expectKept(ES(set), ES(get), target, name, value);
#include "x11/data/es1_parameters.def"
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
    GLint exponent[16] = {}, bits[16] = {};
    EXPECT_EQ(ES(glQueryMatrixxOES)(mantissa, exponent), 0u);
    EXPECT_EQ(std::pair(mantissa[10], exponent[10]), std::pair(-32768, 2)); // -2
    ES(glGetIntegerv)(GL_PROJECTION_MATRIX_FLOAT_AS_INT_BITS_OES, bits);
    EXPECT_EQ(bits[10], static_cast<GLint>(0xC0000000));
}

TEST_F(Gles1State, WhatIsNotOfEsIsAnError) {
    start();
    bindTexture();
    GLfixed fixed[4] = {7, 7, 7, 7};
    const GLuint farIndex = ~0u;
    ES(glVertexPointer)(2, GL_FIXED, 0, fixed);
    ES(glEnableClientState)(GL_VERTEX_ARRAY);
    const auto expect = [&](const char *what, GLint wanted, auto call) {
        call();
        EXPECT_EQ(error(), wanted) << what;
        EXPECT_EQ(error(), GL_NO_ERROR) << what;
    };
#define WRONG(what, wanted, ...) expect(what, wanted, [&] { __VA_ARGS__; });
#include "x11/data/es1_errors.def"
    EXPECT_EQ(fixed[0], 7) << "an output of a failed call";
}

TEST_F(Gles1State, ServesTheNamesOfEs1Alone) {
    start();
    const std::pair<const char *, bool> names[] = {
#include "x11/data/es1_names.def"
    };
    for (const auto &[name, isServed] : names)
        EXPECT_EQ(getExtProcAddress(name) != nullptr, isServed) << (name ? name : "null");
    const auto loaded = reinterpret_cast<decltype(&glGetString)>(symbol("glGetString"));
    EXPECT_EQ(reinterpret_cast<const char *>(loaded(GL_VERSION)), text(GL_VERSION));
}

TEST_F(Gles1State, RefusesACoreContext) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(start("", true), nullptr);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "(Error) no OpenGL ES 1 context: the host's context is a core one, and ES 1 needs a compatibility "
              "context\n");
    // Calls without a context of this library reach the host or do nothing, and never crash.
    EXPECT_EQ(error(), GL_NO_ERROR);
    ES(glDrawTexiOES)(0, 0, 0, 4, 4);
    ES(glPointSizePointerOES)(GL_FLOAT, 0, nullptr);
    ES(glDrawArrays)(GL_POINTS, 0, 1);
}

TEST(Gles1Tables, AreWhatTheScriptMakes) {
    const std::string made = getenv("TMPDIR");
    const std::string compare = " && cmp " + made + "/entries.def " ZELVANE_ES1_DATA "/entries.def";
    EXPECT_EQ(std::system((ZELVANE_ES_EXPORTS_SCRIPT " --es1 " + made + compare).c_str()), 0);
}
