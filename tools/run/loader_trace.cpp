#include "tools/run/loader_trace.h"

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <spawn.h>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

#include "tools/command/failure.h"

namespace {

// LD_BIND_NOW makes the loader look up all symbols, and LD_WARN makes it continue after the first missing one.
const std::vector<std::string> traceVariables = {"LD_TRACE_LOADED_OBJECTS=1", "LD_BIND_NOW=1", "LD_WARN=1"};

std::vector<char *> environmentWith(const std::vector<std::string> &variables) {
    std::vector<char *> list;
    for (const std::string &variable : variables)
        list.push_back(const_cast<char *>(variable.c_str()));
    for (char **variable = environ; *variable; ++variable) {
        const std::string_view name = std::string_view(*variable).substr(0, std::string_view(*variable).find('=') + 1);
        const bool isReplaced =
            std::ranges::any_of(variables, [&](const std::string &own) { return own.starts_with(name); });
        if (!isReplaced) list.push_back(*variable);
    }
    list.push_back(nullptr);
    return list;
}

std::string outputOf(const std::string &program, const std::vector<std::string> &variables) {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) failCommand("no pipe can be created");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);

    const std::vector<char *> environment = environmentWith(variables);
    char *const arguments[] = {const_cast<char *>(program.c_str()), nullptr};
    pid_t tracer = -1;
    const int error = posix_spawn(&tracer, program.c_str(), &actions, nullptr, arguments, environment.data());
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);

    std::string output;
    char bytes[4096];
    for (ssize_t count = 0; error == 0 && (count = read(ends[0], bytes, sizeof bytes)) > 0;)
        output.append(bytes, static_cast<size_t>(count));
    close(ends[0]);
    if (error == 0) waitpid(tracer, nullptr, 0);
    return output;
}

LoaderTrace parse(std::istream &lines) {
    constexpr std::string_view arrow = " => ", absent = "not found", undefined = "undefined symbol: ";
    LoaderTrace trace;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(undefined)) {
            trace.missingSymbols.push_back(line.substr(undefined.size(), line.find_first_of("\t,") - undefined.size()));
        } else if (const auto at = line.find(arrow); line.starts_with('\t') && at != std::string::npos) {
            const std::string file = line.substr(at + arrow.size());
            trace.libraries[line.substr(1, at - 1)] = file == absent ? "" : file.substr(0, file.rfind(" ("));
        } else if (line.starts_with("\t/")) {
            // A library that was requested by its path.
            const std::string file = line.substr(1, line.rfind(" (") - 1);
            trace.libraries[std::filesystem::path(file).filename()] = file;
        }
    }
    return trace;
}

} // namespace

LoaderTrace traceLoader(const std::string &program) {
    std::istringstream lines(outputOf(program, traceVariables));
    return parse(lines);
}

LoaderTrace traceLibraries(const std::vector<std::string> &names, const std::string &searchPath) {
    std::vector<std::string> variables = traceVariables;
    std::string list;
    for (const std::string &name : names)
        list += (list.empty() ? "" : " ") + name;
    // Any program would do.
    variables.insert(variables.end(), {"LD_PRELOAD=" + list, "LD_LIBRARY_PATH=" + searchPath});
    std::istringstream lines(outputOf("/proc/self/exe", variables));
    return parse(lines);
}
