#include "tools/run/checks.h"

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <sstream>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "tools/command/failure.h"
#include "tools/run/elf_program.h"
#include "tools/run/loader_trace.h"

// Defines short macros; must be included last.
#include <X11/Xlib.h>

namespace fs = std::filesystem;

namespace {

std::string quoted(const std::string &text) {
    return "\"" + text + "\"";
}

bool isRunnable(const std::string &file) {
    std::error_code error;
    return fs::is_regular_file(file, error) && access(file.c_str(), X_OK) == 0;
}

// Searches PATH as the shell does. Empty if there is no such program.
std::string findProgram(const std::string &name) {
    if (name.find('/') != std::string::npos) return isRunnable(name) ? name : "";
    const char *path = getenv("PATH");
    std::istringstream directories(path ? path : "/bin:/usr/bin");
    for (std::string directory; std::getline(directories, directory, ':');) {
        const std::string file = (directory.empty() ? "." : directory) + "/" + name;
        if (isRunnable(file)) return file;
    }
    return {};
}

// Why the loader ignores LD_LIBRARY_PATH for the program; null if it does not.
const char *foreignRights(const std::string &file) {
    struct stat found {};
    if (stat(file.c_str(), &found) != 0) return nullptr;
    const bool isSomebodyElses =
        (found.st_mode & S_ISUID && found.st_uid != getuid()) || (found.st_mode & S_ISGID && found.st_gid != getgid());
    if (isSomebodyElses) return " runs with the rights of another user";
    // Root has all of these capabilities already.
    const bool hasCapabilities = getxattr(file.c_str(), "security.capability", nullptr, 0) > 0;
    return hasCapabilities && getuid() != 0 ? " has file capabilities" : nullptr;
}

bool isOurs(const std::string &name) {
    return name.starts_with("libEGL.so") || name.starts_with("libGLESv2.so") || name.starts_with("libGLESv1_CM.so");
}

void checkLibraries(const std::string &program, const LoaderTrace &trace, const std::string &libraries) {
    for (const auto &[name, file] : trace.libraries) {
        if (file.empty()) failCommand(name + ", which " + quoted(program) + " requires, is missing");
        std::error_code error;
        if (!isOurs(name) || fs::equivalent(fs::path(file).parent_path(), libraries, error)) continue;
        if (!fs::exists(fs::path(libraries) / name, error))
            failCommand(quoted(program) + " requires " + name + ", which is not in " + quoted(libraries));
        failCommand(quoted(program) + " uses another copy: it loads " + name + " from " + quoted(file) +
                    ", a path in the program or one of its libraries that precedes every search path");
    }
}

void warnOfSymbols(const std::string &program, const std::vector<std::string> &missing) {
    if (missing.empty()) return;
    constexpr size_t shown = 5;
    std::cerr << "zelvane: warning: " << quoted(program) << " is linked to functions that no library has, and ends if"
              << " it needs one:";
    for (size_t index = 0; index < missing.size() && index < shown; ++index)
        std::cerr << ' ' << missing[index];
    if (missing.size() > shown) std::cerr << " and " << missing.size() - shown << " more";
    std::cerr << '\n';
}

} // namespace

void checkXServer() {
    const char *name = getenv("DISPLAY");
    if (!name || !*name)
        failCommand("there is no X server: DISPLAY is not set; \"xvfb-run\" provides one without a screen");
    Display *display = XOpenDisplay(nullptr);
    if (!display) failCommand("there is no X server at " + quoted(name) + ", which DISPLAY names");
    XCloseDisplay(display);
}

void checkProgram(const std::vector<std::string> &words, const std::string &libraries) {
    const std::string program = findProgram(words[0]);
    if (program.empty()) failCommand(quoted(words[0]) + " is not an executable program");
    const ElfProgram elf = readElfProgram(program);
    if (elf.kind == ElfProgram::notElf) return;
    if (elf.kind == ElfProgram::otherMachine)
        failCommand(quoted(program) + " is built for another kind of machine than this library");
    if (const char *rights = foreignRights(program))
        failCommand(quoted(program) + rights + ", so the loader ignores the directory of this library");
    if (elf.kind == ElfProgram::fixed) {
        std::cerr << "zelvane: warning: " << quoted(program) << " is statically linked and cannot load this library\n";
        return;
    }
    // Other loaders would run the program instead of listing its libraries.
    if (!fs::path(elf.interpreter).filename().string().starts_with("ld-linux")) return;
    const LoaderTrace trace = traceLoader(program);
    checkLibraries(program, trace, libraries);
    warnOfSymbols(program, trace.missingSymbols);
}
