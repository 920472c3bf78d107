#include "x11/back_end_fixture.h"

#include <cstdlib>

namespace {

// The driver reads these while it makes a context, which the fixture does first of all.
struct PoorHost {
    PoorHost() {
        setenv("MESA_GL_VERSION_OVERRIDE", "3.3", 1);
        setenv("MESA_EXTENSION_OVERRIDE", "-GL_ARB_ES3_compatibility", 1);
    }
};
class BackEndOnAPoorHost : private PoorHost, public BackEnd {};

} // namespace

TEST_F(BackEndOnAPoorHost, ContextsThatItCannotCarryAreRefusedInWords) {
    const uint64_t displayAndHandle[2] = {1, 1};
    attribs.esMajor = 3;
    testing::internal::CaptureStderr();
    EXPECT_EQ(createEsContext(&attribs, displayAndHandle, nullptr, nullptr), nullptr);
    const std::string told = testing::internal::GetCapturedStderr();
    EXPECT_NE(told.find("no OpenGL ES 3 context"), std::string::npos) << told;
    EXPECT_NE(told.find("lacks GL_ARB_ES3_compatibility"), std::string::npos) << told;
    EXPECT_EQ(createEsContext(nullptr, displayAndHandle, nullptr, nullptr), nullptr);
    start(2, 0);
}
