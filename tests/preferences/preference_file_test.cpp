#include "preferences/preference_file.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>

#include "preferences/fnv1_hash.h"
#include "preferences/preference_home.h"

namespace {

namespace fs = std::filesystem;

class PreferenceFileTest : public PreferenceHome {
protected:
    PreferenceFile open(int mode, bool atomic) {
        return files.openPreferenceFile("Zelvane", mode, false, atomic, error);
    }
    void expectFailure(const std::string &step, int reason) {
        EXPECT_EQ(open(readPreferences, false).stream, nullptr);
        EXPECT_EQ(error, step + ": " + strerror(reason));
    }

    KZRPreferencesUnix files;
    std::string error;
};

TEST_F(PreferenceFileTest, ReadingMakesDirectoriesAndTemplateOrNamesTheStepThatFailed) {
    const mode_t mask = umask(0);
    const auto record = open(readPreferences, false);
    umask(mask);
    ASSERT_NE(record.stream, nullptr) << error;
    files.closePreferenceFile(record, false);
    EXPECT_EQ(text(), fileText(ZELVANE_SOURCE_DIR "/tests/preferences/data/template.plist"));
    for (const auto &made : {home, directory.parent_path(), directory})
        EXPECT_EQ(static_cast<unsigned>(fs::status(made).permissions()), 0775u) << made;
    fs::remove_all(home);

    fs::create_directories(home);
    std::ofstream(home / ".kzrconfig") << "in the way";
    expectFailure("Failed to create preference directory structure", ENOTDIR);
    fs::remove(home / ".kzrconfig");
    // A file that was writable but not readable was treated as missing, and the template replaced it.
    write("old");
    fs::permissions(file, fs::perms::owner_write);
    if (!std::ifstream(file)) expectFailure("Failed to open preference file", EACCES);
    fs::permissions(file, fs::perms::owner_all);
    EXPECT_EQ(text(), "old");
    // Opening a pipe blocked until a process wrote to it.
    fs::remove(file);
    ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
    expectFailure("Failed to open preference file", ENOTSUP);
}

TEST_F(PreferenceFileTest, WritesByModeAndCommits) {
    const auto expectCommit = [&](int mode, bool isAtomic, bool commits, const char *after, const char *reason) {
        write("old");
        const auto record = open(mode, isAtomic);
        ASSERT_NE(record.stream, nullptr);
        fputs("new", record.stream);
        files.closePreferenceFile(record, commits);
        EXPECT_EQ(text(), after) << reason;
        fs::remove(temporary);
    };
#define COMMIT(...) expectCommit(__VA_ARGS__);
#include "preferences/data/commits.def"
}

TEST_F(PreferenceFileTest, StampIsTheHashOfTheTimeOfChange) {
    uint32_t stamp = 77;
    EXPECT_TRUE(!files.getPreferenceFileStamp("Zelvane", false, stamp) && stamp == 77);
    write("text");
    const timespec times[] = {{0, 0}, {0x0102030405, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, file.c_str(), times, 0), 0);
    EXPECT_TRUE(files.getPreferenceFileStamp("Zelvane", false, stamp));
    EXPECT_EQ(stamp, 0x7ef8476au) << "of eight bytes, the lowest first";
    EXPECT_EQ(fnv1Hash(""), 0u) << "and not the basis";
}

} // namespace
