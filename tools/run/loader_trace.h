// The libraries that the loader finds for a program, without running it.
#pragma once

#include <map>
#include <string>
#include <vector>

struct LoaderTrace {
    std::map<std::string, std::string> libraries; // from the requested name to the file; empty for a missing one
    std::vector<std::string> missingSymbols;
};

// Only for dynamic programs of the C library's own loader, which lists the libraries instead of running them. The
// search path is that of this process's environment.
[[nodiscard]] LoaderTrace traceLoader(const std::string &program);

// The files that the loader finds for these names, with their dependencies, when LD_LIBRARY_PATH is the search path. A
// name without a file is missing in the result.
[[nodiscard]] LoaderTrace traceLibraries(const std::vector<std::string> &names, const std::string &searchPath);
