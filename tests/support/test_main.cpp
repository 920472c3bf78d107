// Every case runs in a process with its own HOME and TMPDIR, which are removed at the end.
#include <gtest/gtest.h>

#include <dlfcn.h>
#include <link.h>

#include <cstdlib>
#include <filesystem>
#include <string>

// The suppression files list leaks of the drivers and known losses, with reasons.
#define FOR_THE_SANITIZER extern "C" __attribute__((visibility("default"), used)) const char *
FOR_THE_SANITIZER __lsan_default_options() {
    return ZELVANE_LEAK_OPTIONS;
}
FOR_THE_SANITIZER __tsan_default_options() {
    return ZELVANE_THREAD_OPTIONS;
}

// The leak check cannot name drivers that were unloaded before it runs.
static void keepLibrariesLoaded() {
    const auto keep = [](dl_phdr_info *info, size_t, void *) {
        if (info->dlpi_name[0] == '/') (void)dlopen(info->dlpi_name, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE);
        return 0;
    };
    dl_iterate_phdr(keep, nullptr);
}

int main(int argc, char **argv) {
    testing::InitGoogleTest(&argc, argv);
    std::string directory = std::filesystem::temp_directory_path() / "zelvane-test.XXXXXX";
    if (!mkdtemp(directory.data())) return 1;
    std::filesystem::create_directory(directory + "/home");
    std::filesystem::create_directory(directory + "/tmp");
    setenv("HOME", (directory + "/home").c_str(), 1);
    setenv("TMPDIR", (directory + "/tmp").c_str(), 1);
    unsetenv("ZELVANE_PROFILE_PATH");
    unsetenv("KZRTRACE_LIB_PATH");
    unsetenv("XDG_RUNTIME_DIR");
    setenv("LSAN_OPTIONS", ZELVANE_LEAK_OPTIONS, 1); // for commands that cases run

    const int result = RUN_ALL_TESTS();
    keepLibrariesLoaded();
    std::error_code ignored;
    std::filesystem::remove_all(directory, ignored);
    return result;
}
