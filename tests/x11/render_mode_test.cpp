#include "x11/back_end_fixture.h"

namespace {

int isGuiAttached = 0;
uint64_t frame = 0;
std::vector<uint32_t> postedTypes;

class BackEndRenderMode : public BackEnd {
protected:
    // The colour inside a triangle that covers most of the lower left half.
    Pixel drawnInside() {
        clear();
        draw(GL_TRIANGLES, {-0.6875, -0.6875, 1, -0.6875, -0.6875, 1});
        // The edge crosses the row below, which a filled triangle need not cover.
        EXPECT_TRUE(pixel(6, 2) == green || pixel(6, 3) == green);
        return pixel(5, 5);
    }
    void gui(uint8_t mode) { OWN(zvSetRenderMode)(&mode, 1); }
    void entry(const char *name, GLuint argument) { es<uint64_t(GLuint)>(name)(argument); }
};

} // namespace

extern "C" ZV_EXPORT uint64_t zvCurrentFrameNumber(void) {
    return frame;
}
extern "C" ZV_EXPORT int zvGuiIsAttached(void) {
    return isGuiAttached;
}
extern "C" ZV_EXPORT void zvPostFrameMessage(zvMessage message) {
    postedTypes.push_back(message.header.type);
}

TEST_F(BackEndRenderMode, WireframeDrawsEdgesFromTheNextDrawOn) {
    gui(1); // before any context
    startWith(2, 0, plainVertex, greenFragment);
    EXPECT_EQ(drawnInside(), black);
#define STEP(call, inside)                                                                                             \
    call;                                                                                                              \
    EXPECT_EQ(drawnInside(), inside) << #call;
#include "x11/data/wireframe.def"
#undef STEP
}

TEST_F(BackEndRenderMode, AFrameThatDrawsPostsOneMarkerToAnAttachedGui) {
    startWith(2, 0, plainVertex, greenFragment);
    drawnInside();
    EXPECT_TRUE(postedTypes.empty());
    isGuiAttached = 1; // as if attached at the start of the process
    OWN(zvSetEsContextAttribs)(current, &attribs);
    for (frame = 5; frame < 8; ++frame) {
        drawnInside();
        drawnInside();
    }
    EXPECT_EQ(postedTypes, std::vector<uint32_t>(3, ZV_BACK_END_MARKER));
}
