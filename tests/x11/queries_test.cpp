#include "x11/back_end_fixture.h"

std::string profileText;

namespace {

// The results of one query function, and a sentinel after them.
template <typename Value>
std::vector<double> ask(void(GL_APIENTRY *get)(GLenum, Value *), GLenum name) {
    std::vector<Value> values(256, Value(77));
    get(name, values.data());
    return {values.begin(), values.end()};
}

} // namespace

extern "C" ZV_EXPORT const char *zvSettingsProfileText(const void *) {
    return profileText.c_str();
}

TEST_F(BackEnd, EveryFormAnswersEveryEnumerantOfTheVersion) {
    const auto check = [&](int version, GLenum name) {
        SCOPED_TRACE(testing::Message() << std::hex << name);
        start(version / 10, version % 10);
        const auto integers = ask<GLint>(ES(glGetIntegerv), name);
        const auto floats = ask<GLfloat>(ES(glGetFloatv), name);
        const auto booleans = ask<GLboolean>(ES(glGetBooleanv), name);
        EXPECT_EQ(error(), GL_NO_ERROR);
        // An empty list writes nothing.
        EXPECT_EQ(integers[0] == 77, floats[0] == 77);
        EXPECT_EQ(booleans[0] != 0, floats[0] != 0);
    };
#define ENUMERANT(version, name) check(version, name);
#include "x11/data/enumerants.def"
#undef ENUMERANT
}

TEST_F(BackEnd, TheProfilesDeviceAnswersAsFarAsTheHostCarriesIt) {
    profileText =
#include "x11/data/device.def"
        ;
    start(3, 0);
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

TEST_F(BackEnd, WhatADesktopsProfileDoesNotSayIsTheHosts) {
    start(3, 0);
    const std::string extensions = text(GL_EXTENSIONS);
    const GLint formats = integer(GL_NUM_COMPRESSED_TEXTURE_FORMATS);
    profileText =
        "<profile><es version='30'><max_texture_size>512</max_texture_size></es><egl host_only='true'/></profile>";
    start(3, 0);
    EXPECT_EQ(text(GL_EXTENSIONS), extensions);
    EXPECT_EQ(integer(GL_NUM_COMPRESSED_TEXTURE_FORMATS), formats);
    EXPECT_EQ(integer(GL_MAX_TEXTURE_SIZE), 512);
}

TEST_F(BackEnd, DesktopProgramsGetExtensionsWhoseFunctionsOthersCannotCall) {
    const char *const names[] = {"GL_EXT_clip_control", "GL_KHR_robustness", "GL_OES_texture_view",
                                 "GL_ANDROID_extension_pack_es31a"};
    setenv("ZELVANE_DESKTOP_CLIENTS", "1", 1);
    start(3, 2);
    for (const char *name : names)
        EXPECT_THAT(text(GL_EXTENSIONS), testing::HasSubstr(name));
    ES(glClipControlEXT)(GL_UPPER_LEFT_EXT, GL_ZERO_TO_ONE_EXT);
    EXPECT_EQ(integer(GL_CLIP_ORIGIN_EXT), GL_UPPER_LEFT_EXT);
}

TEST_F(BackEnd, TellsWhetherTheContextChecksErrors) {
    for (const uint8_t noError : {0, 1}) {
        attribs.noError = noError;
        start(3, 2);
        EXPECT_EQ(integer(GL_CONTEXT_FLAGS) & GL_CONTEXT_FLAG_NO_ERROR_BIT_KHR, noError * 8);
    }
}

TEST_F(BackEnd, ListsTheSameExtensionsInBothForms) {
    start(3, 0);
    const auto count = static_cast<GLuint>(integer(GL_NUM_EXTENSIONS));
    std::string joined;
    for (GLuint index = 0; index < count; ++index)
        joined += (index == 0 ? "" : " ") +
                  std::string(reinterpret_cast<const char *>(ES(glGetStringi)(GL_EXTENSIONS, index)));
    EXPECT_EQ(joined, text(GL_EXTENSIONS));
    EXPECT_EQ(joined.find("GL_ARB_"), std::string::npos) << "means nothing to an ES program";
    EXPECT_EQ(joined.find("GL_EXT_clip_control"), std::string::npos) << "its function is for desktop programs";
    for (const char *name : {"GL_OES_mapbuffer", "GL_OES_vertex_array_object", "GL_EXT_discard_framebuffer"})
        EXPECT_THAT(joined, testing::HasSubstr(name));
    EXPECT_EQ(ES(glGetStringi)(GL_EXTENSIONS, count), nullptr);
    EXPECT_EQ(error(), GL_INVALID_VALUE);
}

TEST_F(BackEnd, TheSurfaceHasOneColourBufferNamedBack) {
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
    const auto ofAttachment = ES(glGetFramebufferAttachmentParameteriv);
    ofAttachment(GL_FRAMEBUFFER, GL_BACK, GL_FRAMEBUFFER_ATTACHMENT_RED_SIZE, &bits);
    EXPECT_GE(bits, 8);
    const GLenum attachments[] = {GL_COLOR_EXT, GL_DEPTH_EXT, GL_STENCIL_EXT};
    ES(glDiscardFramebufferEXT)(GL_FRAMEBUFFER, 3, attachments);
    ES(glHint)(GL_GENERATE_MIPMAP_HINT, GL_NICEST);
    EXPECT_EQ(integer(GL_GENERATE_MIPMAP_HINT), GL_NICEST);
    clear(0, 1, 0);
    EXPECT_EQ(pixel(3, 3), green);
}
