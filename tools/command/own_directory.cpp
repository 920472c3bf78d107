#include "tools/command/own_directory.h"

#include <filesystem>

#include "tools/command/failure.h"

namespace fs = std::filesystem;

std::string findOwnDirectory(const std::string &file, std::initializer_list<const char *> directories) {
    std::error_code error;
    const fs::path bin = fs::read_symlink("/proc/self/exe", error).parent_path();
    for (const char *relative : directories) {
        const fs::path directory = (bin / relative).lexically_normal();
        if (fs::exists(directory / file, error)) return directory;
    }
    return {};
}

std::string ownDirectory(const std::string &file, std::initializer_list<const char *> directories) {
    const std::string directory = findOwnDirectory(file, directories);
    if (!directory.empty()) return directory;
    failCommand(file + " is not where it was installed, seen from this command");
}
