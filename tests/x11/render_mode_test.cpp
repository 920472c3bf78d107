#include "x11/picture_fixture.h"

#include <optional>

namespace {

struct FakeGui {
    int isAttached = 0;
    uint64_t frame = 0;
    std::vector<uint32_t> types;
} gui;

class BackEndRenderMode : public BackEndPicture {
protected:
    void SetUp() override { startGreen(2, 0); }

    // What is inside a triangle that covers most of the lower left half.
    Pixel drawnInside() {
        clear();
        GLuint buffer = 0;
        const GLfloat points[] = {-0.6875, -0.6875, 1, -0.6875, -0.6875, 1};
        ES(glGenBuffers)(1, &buffer);
        ES(glBindBuffer)(GL_ARRAY_BUFFER, buffer);
        ES(glBufferData)(GL_ARRAY_BUFFER, sizeof points, points, GL_STATIC_DRAW);
        ES(glVertexAttribPointer)(0, 2, GL_FLOAT, GL_FALSE, 0, nullptr);
        ES(glEnableVertexAttribArray)(0);
        ES(glDrawArrays)(GL_TRIANGLES, 0, 3);
        // The edge goes through the row below, which a filled triangle need not touch.
        EXPECT_TRUE(pixel(6, 2) == green || pixel(6, 3) == green);
        return pixel(5, 5);
    }
    void call(const char *name, GLuint argument) { es<uint64_t(GLuint)>(name)(argument); }
};

} // namespace

extern "C" ZV_EXPORT uint64_t zvCurrentFrameNumber(void) {
    return gui.frame;
}
extern "C" ZV_EXPORT int zvGuiIsAttached(void) {
    return gui.isAttached;
}
extern "C" ZV_EXPORT void zvPostFrameMessage(zvMessage message) {
    gui.types.push_back(message.header.type);
}

TEST_F(BackEndRenderMode, WireframeDrawsEdgesFromTheNextDrawOn) {
    const struct {
        std::optional<uint8_t> mode; // of the GUI, otherwise a debug entry
        const char *name;
        GLuint argument;
        Pixel inside;
    } steps[] = {
        {0, "", 0, green},
        {1, "", 0, black},
        {2, "", 0, green},
        {{}, "zvToggleWireframe", 1, black},
        {{}, "Zelvane_ToggleWireframe", 0, green},
        {{}, "zvSetContextWireframe", 7, black},
        {{}, "zvToggleWireframe", 0, black},
        {{}, "zvSetContextWireframe", 0, green},
    };
    for (const auto &step : steps) {
        SCOPED_TRACE(testing::Message() << step.name << ' ' << int(step.mode.value_or(9)) << ' ' << step.argument);
        if (step.mode) {
            setRenderMode(&*step.mode, 1);
        } else {
            call(step.name, step.argument);
        }
        EXPECT_EQ(drawnInside(), step.inside);
    }
}

TEST_F(BackEndRenderMode, AFrameThatDrawsPostsOneMarkerToAnAttachedGui) {
    drawnInside();
    EXPECT_TRUE(gui.types.empty());
    gui.isAttached = 1;
    for (gui.frame = 5; gui.frame < 8; ++gui.frame) {
        drawnInside();
        drawnInside();
    }
    EXPECT_EQ(gui.types, std::vector<uint32_t>(3, ZV_BACK_END_MARKER));
}

TEST_F(BackEndRenderMode, TheHostsSourceOfAShaderCanBeSeen) {
    const GLuint shader = compile(GL_FRAGMENT_SHADER, {"void main() {}"});
    char source[100] = "";
    GLsizei length = 0;
    es<decltype(glGetShaderSource)>("zvGetOpenGLShaderSource")(shader, sizeof source, &length, source);
    EXPECT_NE(std::string(source).find("#version"), std::string::npos) << source;
    EXPECT_NE(std::string(source).find("void main() {}"), std::string::npos) << source;
}
