#include "foundation/dynamic_library.h"

#include <gtest/gtest.h>

#include <dlfcn.h>
#include <filesystem>

#include "foundation/library_link.h"
#include "foundation/paths.h"
#include "support/environment.h"

namespace {

namespace fs = std::filesystem;
using namespace std::string_literals;

// A new copy of the library, so that it is not a file that another case left open.
class DynamicLibraryTest : public testing::Test {
protected:
    DynamicLibraryTest() {
        fs::create_directories(directory);
        fs::copy_file(ZELVANE_LOADABLE, directory / name);
    }
    ~DynamicLibraryTest() override {
        fs::remove_all(directory);
        EXPECT_TRUE(fs::is_empty(getenv("TMPDIR"))) << "a link stays behind";
    }
    bool isResident() const {
        void *handle = dlopen((directory / name).c_str(), RTLD_LAZY | RTLD_NOLOAD);
        return handle && dlclose(handle) == 0;
    }

    const std::string name = "loadable.so";
    const fs::path directory = fs::path(getenv("HOME")) / testing::UnitTest::GetInstance()->current_test_info()->name();
    const std::string missing = directory / "missing";
    DynamicLibrary library{name};
};

TEST_F(DynamicLibraryTest, SearchOrder) {
    // The bare name was opened in this directory, so any user who could write there could plant a library.
    const fs::path planted = fs::path(getenv("TMPDIR")) / "planted.so";
    fs::copy_file(ZELVANE_LOADABLE, planted);
    fs::current_path(directory);
    const auto expectSearch = [&](const std::string &file, const std::vector<std::string> &paths, bool isLoaded,
                                  const char *reason) {
        DynamicLibrary tried(file);
        EXPECT_EQ(tried.open(paths), isLoaded) << reason;
        EXPECT_EQ(tried.getSymbol("zelvaneLoadableAnswer") != nullptr, isLoaded) << reason;
    };
#define SEARCH(...) expectSearch(__VA_ARGS__);
#include "foundation/data/searches.def"
    fs::remove(planted);
    for (const auto &[value, wanted] : {std::pair("ours"s, directory.string() + "/ours"),
                                        {"ours", directory.string() + "/ours"},
                                        {"/other", "/other"}}) {
        const Variable variable("KZRTRACE_LIB_PATH", value);
        EXPECT_EQ(esLibrarySearchPaths(), (std::vector<std::string>{getOwnDirectory(), wanted}));
        fs::current_path("/"); // the directory at the first call is used
    }
}

TEST_F(DynamicLibraryTest, LastCopyCloses) {
    ASSERT_TRUE(library.open({directory}));
    {
        // A copy was left with a handle that the reopened original had closed.
        const DynamicLibrary copy(library);
        EXPECT_FALSE(library.open({missing}));
        EXPECT_EQ(library.getSymbol("zelvaneLoadableAnswer"), nullptr);
        EXPECT_NE(copy.getSymbol("zelvaneLoadableAnswer"), nullptr);
        EXPECT_TRUE(isResident());
    }
    EXPECT_FALSE(isResident());
    EXPECT_TRUE(library.open({directory}) && !library.open({missing}));
    EXPECT_FALSE(isResident()) << "without copies the old handle goes";
    EXPECT_TRUE(library.open({directory}));
    library = DynamicLibrary("other");
    EXPECT_TRUE(isResident()) << "the handle that was assigned over stays open for good";
}

TEST_F(DynamicLibraryTest, LongTemporaryDirectoryOpensNothing) {
    std::string longest = directory.string();
    while (longest.size() < 1021)
        longest += "/" + std::string(std::min<size_t>(200, 1020 - longest.size()), 'd');
    for (const char *end : {"d", "dd"}) { // with the slash after it, 1023 and 1024 in all
        fs::create_directories(longest + end);
        const Variable variable("TMPDIR", longest + end);
        EXPECT_EQ(library.open({directory}), end == "d"s);
    }
}

TEST_F(DynamicLibraryTest, LinksLieInADirectoryOfOurOwnForAMoment) {
    const fs::path runtime = directory / "runtime";
    fs::create_directory(runtime);
    for (const char *value : {runtime.c_str(), "/missing", "relative"}) {
        const Variable variable("XDG_RUNTIME_DIR", value);
        const LibraryLink link(directory / name);
        const fs::path made = fs::path(link.path()).parent_path();
        EXPECT_EQ(made.parent_path(), value == runtime ? runtime : fs::path(getenv("TMPDIR")));
        EXPECT_EQ(fs::status(made).permissions(), fs::perms::owner_all);
    }
    EXPECT_TRUE(fs::is_empty(runtime));
}

TEST_F(DynamicLibraryTest, ATemporaryDirectoryThatTakesNoLinksIsNamedOnce) {
    const Variable variable("TMPDIR", "/missing");
    testing::internal::CaptureStderr();
    EXPECT_FALSE(library.open({directory, directory}));
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "(Error) Failed to make a link to a library below '/missing/': No such file or directory\n");
}

} // namespace
