// Linked by binaries whose cases draw on an X server: without one they are skipped, which ctest reports.
#include <gtest/gtest.h>

#include <cstdlib>

namespace {

class NeedsDisplay : public testing::Environment {
    void SetUp() override {
        const char *display = getenv("DISPLAY");
        // ctest looks for this mark; a skip in the environment does not print it.
        if (!display || !*display) GTEST_SKIP() << "[  SKIPPED ] there is no X server: DISPLAY is not set";
    }
};

[[maybe_unused]] const auto *const registered = testing::AddGlobalTestEnvironment(new NeedsDisplay);

} // namespace
