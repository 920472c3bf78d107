// The libraries that the loader finds for programs, and the back ends that libEGL finds.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>

#include "foundation/dynamic_library.h"
#include "foundation/platform/library_directories.h"
#include "tools/doctor/diagnosis.h"
#include "tools/run/libraries.h"
#include "tools/run/loader_trace.h"

namespace fs = std::filesystem;

namespace {

const std::vector<std::string> names = {"libEGL.so.1", es2LibraryName, es1LibraryName};
constexpr char desktopName[] = "libGL.so.1"; // for desktop programs, under "zelvane run" alone

std::string variable(const char *name) {
    const char *value = getenv(name);
    return value ? value : "";
}

std::string quoted(const std::string &text) {
    return '"' + text + '"';
}

std::string bytesOf(const std::string &file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

// Whether the file exports a function that no other EGL or OpenGL ES library has.
bool isOurs(const std::string &file) {
    const std::string bytes = bytesOf(file);
    return bytes.find("zvCurrentFrameNumber") != std::string::npos ||
           bytes.find("zvCreateEsContext") != std::string::npos;
}

bool isSameFile(const std::string &one, const std::string &other) {
    std::error_code error;
    return fs::equivalent(one, other, error);
}

std::string fileOf(const LoaderTrace &trace, const std::string &name) {
    const auto found = trace.libraries.find(name);
    return found == trace.libraries.end() ? "" : found->second;
}

std::vector<std::string> pathDirectories(const std::string &path) {
    std::vector<std::string> directories;
    for (size_t start = 0; start <= path.size();) {
        const size_t end = std::min(path.find(':', start), path.size());
        if (end > start) directories.push_back(path.substr(start, end - start));
        start = end + 1;
    }
    return directories;
}

// Zelvane's files on the search paths, other than those that the command uses.
Json otherCopies(const std::string &own) {
    std::vector<std::string> directories = pathDirectories(variable("LD_LIBRARY_PATH"));
    directories.push_back(variable("KZRTRACE_LIB_PATH"));
    for (const std::string &directory : systemLibraryDirectories())
        directories.push_back(directory);
    Json copies = Json::array();
    std::set<std::string> seen;
    for (const std::string &directory : directories) {
        for (const std::string &name : names) {
            std::error_code error;
            const std::string file = fs::canonical(fs::path(directory) / name, error);
            if (error || isSameFile(file, own + '/' + name) || !seen.insert(file).second || !isOurs(file)) continue;
            copies.push_back(file + (bytesOf(file) == bytesOf(own + '/' + name) ? " (the same build)" : ""));
        }
    }
    return copies;
}

void findMixture(Diagnosis &diagnosis, const LoaderTrace &plain, const std::string &own) {
    const std::string egl = fileOf(plain, names[0]);
    const std::string lead = "export LD_LIBRARY_PATH=" + quoted(own);
    const bool hasOurEgl = !egl.empty() && isOurs(egl);
    if (hasOurEgl && !isSameFile(egl, own + '/' + names[0]) && bytesOf(egl) != bytesOf(own + '/' + names[0])) {
        diagnosis.add("a program that is started without \"zelvane run\" loads another build of Zelvane, " +
                          quoted(egl),
                      lead + ", or remove that copy");
    }
    for (const std::string &name : {names[1], names[2]}) {
        const std::string file = fileOf(plain, name);
        if (egl.empty() || file.empty() || isOurs(file) == hasOurEgl) continue;
        diagnosis.add("a program that is started without \"zelvane run\" mixes two systems: it loads " + quoted(egl) +
                          " and " + quoted(file),
                      hasOurEgl ? lead : "unset LD_LIBRARY_PATH, or remove " + quoted(file));
    }
}

} // namespace

void examineLibraries(Diagnosis &diagnosis) {
    const std::string own = ownLibraries(), path = variable("LD_LIBRARY_PATH");
    Json &facts = diagnosis.facts["libraries"] = {{"directory", orNull(own)}};
    std::vector<std::string> all = names;
    all.emplace_back(desktopName);
    const LoaderTrace plain = traceLibraries(all, path);
    LoaderTrace run;
    if (!own.empty()) run = traceLibraries(all, RunLibraries("").searchPath() + (path.empty() ? "" : ':' + path));
    for (const std::string &name : all)
        facts[name] = {{"plainly", orNull(fileOf(plain, name))}, {"underRun", orNull(fileOf(run, name))}};
    if (own.empty()) {
        diagnosis.add("libEGL.so.1 is not where it was installed, seen from this command",
                      "build or install Zelvane again");
        return;
    }
    facts["otherCopies"] = otherCopies(own);
    for (const std::string &name : names) {
        const std::string file = fileOf(run, name);
        if (!file.empty() && !isSameFile(file, own + '/' + name))
            diagnosis.add("under \"zelvane run\" a program loads " + quoted(file) + " for " + name,
                          "build or install Zelvane again");
    }
    for (const auto &[name, file] : run.libraries)
        if (file.empty())
            diagnosis.add(name + " is missing, which the libraries need", "install the package that has it");
    findMixture(diagnosis, plain, own);
}

void examineBackEnds(Diagnosis &diagnosis) {
    const std::string own = ownLibraries(), more = variable("KZRTRACE_LIB_PATH");
    Json &facts = diagnosis.facts["backEnds"] = Json::object();
    facts["KZRTRACE_LIB_PATH"] = orNull(more);
    bool isUsed = more.empty();
    for (const auto &[version, name] :
         {std::pair("OpenGL ES 1", es1LibraryName), {"OpenGL ES 2 and 3", es2LibraryName}}) {
        Json files = Json::array();
        for (const std::string &directory : {own, more}) {
            std::error_code error;
            const fs::path file = fs::path(directory) / name;
            if (directory.empty() || !fs::exists(file, error)) continue;
            isUsed |= directory == more;
            files.push_back(file.string());
        }
        if (files.empty()) {
            diagnosis.add(std::string("there is no back end for ") + version + ", " + name,
                          "build or install Zelvane again, or name its directory in KZRTRACE_LIB_PATH");
        }
        facts[version] = files; // the first is used
    }
    if (!isUsed)
        diagnosis.add("KZRTRACE_LIB_PATH names " + quoted(more) + ", which has no back end", "unset KZRTRACE_LIB_PATH");
}
