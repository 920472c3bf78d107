// Runs the zelvane command as a user would.
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

struct CommandResult {
    int status;
    std::string output; // of both output streams
};

// Runs a shell line, with zelvane in PATH.
inline CommandResult shell(const std::string &line) {
    const std::string script = "zelvane() { " ZELVANE_COMMAND " \"$@\"; }\n{ " + line + "\n} 2>&1";
    FILE *pipe = popen(script.c_str(), "r");
    CommandResult result{-1, {}};
    char buffer[4096];
    while (const size_t count = fread(buffer, 1, sizeof buffer, pipe))
        result.output.append(buffer, count);
    const int status = pclose(pipe);
    if (WIFEXITED(status)) result.status = WEXITSTATUS(status);
    return result;
}

// arguments: as the shell parses them.
inline CommandResult run(const std::string &arguments) {
    return shell("zelvane " + arguments);
}

inline std::filesystem::path homeDirectory() {
    return getenv("HOME");
}

inline std::filesystem::path preferencesFile() {
    return homeDirectory() / ".kzrconfig/Tarnwell Graphics/com.tarnlight.Zelvane.plist";
}

inline void writeFile(const std::filesystem::path &path, const std::string &text) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
}
