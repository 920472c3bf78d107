// Linked by binaries whose cases draw on an X server: without one they are skipped, and ctest says so.
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

class NeedsDisplay : public testing::Environment {
    void SetUp() override {
        const char *display = getenv("DISPLAY");
        // The mark is what ctest looks for; a skip in the environment prints none of its own.
        if (!display || !*display) GTEST_SKIP() << "[  SKIPPED ] there is no X server: DISPLAY is not set";
    }
};

[[maybe_unused]] const auto *const registered = testing::AddGlobalTestEnvironment(new NeedsDisplay);

} // namespace
