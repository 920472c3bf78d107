#include <gtest/gtest.h>

#include <pwd.h>
#include <string>
#include <unistd.h>

#include "foundation/log.h"
#include "foundation/paths.h"
#include "foundation/string.h"
#include "support/environment.h"

namespace {

using namespace std::string_literals;
using Value = std::optional<std::string>;

void expectString(const CKZRTString &string, const std::string &text, uint64_t capacity) {
    EXPECT_EQ(std::string(string.data(), string.length()), text);
    EXPECT_EQ(string.capacity(), capacity) << text;
    EXPECT_EQ(string.data()[string.length()], '\0');
}

TEST(String, BufferFitsAndIsKeptWhileItIsLongEnoughAndMayBeItsOwnSource) {
    expectString(CKZRTString(nullptr, 3), "", 1);
    CKZRTString string("abc", 2);
    string.assign("xyz"); // as long as the capacity
    string.assign("q");
    expectString(string, "q", 4);
    string.append("rst");
    expectString(string, "qrst", 5);
    string.append(string.data() + 1, 2); // of itself
    string.append(string);
    expectString(string, "qrstrsqrstrs", 13);
    string.assign(string.data() + 2, 4);
    string = *&string;
    expectString(string, "strs", 13);
    string.clear();
    expectString(string, "", 1);
    expectString(CKZRTString("dir/") + "file", "dir/file", 9);
    expectString(CKZRTString("dir/").concat(static_cast<const char *>(nullptr)), "dir/", 5);
}

TEST(String, Erase) {
    constexpr auto npos = CKZRTString::npos;
    const auto expectErase = [&](uint64_t position, uint64_t count, const std::string &text, const char *reason) {
        SCOPED_TRACE(reason);
        CKZRTString string("abcde");
        string.erase(position, count);
        expectString(string, text, text.size() > 5 ? 8 : 6);
    };
#define ERASE(...) expectErase(__VA_ARGS__);
#include "foundation/data/erasures.def"
}

std::string heard;

TEST(Log, LevelsHavePrefixesAndStreams) {
    setLogListener([](int32_t level, const char *text) { heard = std::to_string(level) + text; });
    const auto text = [](size_t length) { return std::string(length, 'x'); };
    const auto expectLevel = [&](int32_t level, size_t length, size_t printed, const char *prefix, const char *reason) {
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
    };
#define LEVEL(...) expectLevel(__VA_ARGS__);
#include "foundation/data/log_levels.def"
    setLogListener(nullptr);
}

TEST(Paths, VariablesDecide) {
    const passwd *user = getpwuid(getuid());
    for (const auto &[value, home] :
         {std::pair<Value, std::string>("/some", "/some"), {"", ""}, {{}, user ? user->pw_dir : ""}}) {
        const Variable variable("HOME", value);
        std::string config = "sentinel";
        EXPECT_EQ(getConfigDirectory(config), !home.empty());
        EXPECT_EQ(config, home.empty() ? "" : home + "/.kzrconfig/Tarnwell Graphics");
    }
    for (const auto &[value, directory] :
         {std::pair<Value, std::string>("/x", "/x/"), {"/x/", "/x/"}, {"", "/tmp/"}, {{}, "/tmp/"}}) {
        const Variable variable("TMPDIR", value);
        EXPECT_EQ(getTemporaryDirectory(), directory);
    }
    std::string path = "sentinel";
    EXPECT_TRUE(!getProfilePathFromEnvironment(path) && path == "sentinel");
    const Variable variable("ZELVANE_PROFILE_PATH", "");
    EXPECT_TRUE(getProfilePathFromEnvironment(path) && path.empty()) << "set, though empty";
}

} // namespace
