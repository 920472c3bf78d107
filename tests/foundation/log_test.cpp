#include "foundation/log.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

namespace {

std::string heard;

TEST(Log, LevelsHavePrefixesAndStreams) {
    setLogListener([](int32_t level, const char *text) { heard = std::to_string(level) + text; });
    const auto text = [](size_t length) { return std::string(length, 'x'); };
    const std::tuple<int32_t, size_t, size_t, const char *, const char *> rows[] = {
#define LEVEL(...) {__VA_ARGS__},
#include "foundation/data/log_levels.def"
    };
    for (const auto &[level, length, printed, prefix, reason] : rows) {
        SCOPED_TRACE(reason);
        heard = "";
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        logMessage(level, "%s", text(length).c_str());
        const std::string out = testing::internal::GetCapturedStdout(), err = testing::internal::GetCapturedStderr();
        const bool isLevel = *prefix, isError = level == LogError;
        EXPECT_EQ(isError ? err : out, isLevel ? prefix + text(printed) + "\n" : "");
        EXPECT_EQ(isError ? out : err, "");
        EXPECT_EQ(heard, isLevel ? std::to_string(level) + text(printed) : "");
    }
    setLogListener(nullptr);
}

} // namespace
