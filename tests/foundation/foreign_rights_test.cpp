#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <grp.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include "support/environment.h"
#include "support/file_text.h"

namespace {

namespace fs = std::filesystem;

// A user without processes and files, and a group with rights of its own.
constexpr uid_t visitor = 65534;
constexpr gid_t keepers = 1;

class ForeignRights : public testing::Test {
protected:
    ForeignRights() { fs::permissions(directory, fs::perms::all); }
    ~ForeignRights() override { fs::remove_all(directory); }

    std::string outputOf(const char *probe, mode_t mode) {
        fs::copy_file(probe, program, fs::copy_options::overwrite_existing);
        EXPECT_TRUE(chown(program.c_str(), 0, keepers) == 0 && chmod(program.c_str(), mode) == 0);
        const std::string output = directory + "/output";
        const pid_t child = fork();
        if (child == 0) {
            if (!freopen(output.c_str(), "w", stdout)) _exit(1);
            if (setgroups(0, nullptr) == 0 && setgid(visitor) == 0 && setuid(visitor) == 0)
                execl(program.c_str(), program.c_str(), nullptr);
            _exit(1);
        }
        int status = -1;
        EXPECT_TRUE(waitpid(child, &status, 0) == child && status == 0) << status;
        return fileText(output);
    }

    const std::string directory = [] {
        std::string made = "/tmp/zelvane-rights.XXXXXX";
        return std::string(mkdtemp(made.data()));
    }();
    const std::string program = directory + "/program";
};

TEST_F(ForeignRights, NoVariableCountsAndNoFileIsMade) {
    if (getuid() != 0) GTEST_SKIP() << "only root can make a program with foreign rights";
    const std::string own = directory + "/own";
    const Variable variables[] = {{"HOME", own},
                                  {"ZELVANE_PREFERENCES_DIRECTORY", own},
                                  {"ZELVANE_PROFILE_PATH", own},
                                  {"KZRTRACE_LIB_PATH", own},
                                  {"TMPDIR", own},
                                  {"ZELVANE_DESKTOP_CLIENTS", "1"}};
    EXPECT_EQ(outputOf(ZELVANE_BACK_END_RIGHTS_PROBE, 02755), "device client\n");
    EXPECT_EQ(outputOf(ZELVANE_BACK_END_RIGHTS_PROBE, 00755), "desktop client\n");
    EXPECT_EQ(outputOf(ZELVANE_FOREIGN_RIGHTS_PROBE, 02755),
              "1 back ends in 1, profiles in '', preferences in /nonexistent/.kzrconfig/Tarnwell "
              "Graphics, links in /tmp/, device client\n");
    EXPECT_FALSE(fs::exists(own));
    EXPECT_EQ(outputOf(ZELVANE_FOREIGN_RIGHTS_PROBE, 00755), "1 back ends in 2, profiles in '" + own +
                                                                 "', preferences in " + own + ", links in " + own +
                                                                 "/, desktop client\n");
    EXPECT_TRUE(fs::exists(own));
}

} // namespace
