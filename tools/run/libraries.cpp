#include "tools/run/libraries.h"

#include <filesystem>

#include "foundation/dynamic_library.h"
#include "tools/command/failure.h"
#include "tools/command/own_directory.h"

namespace fs = std::filesystem;

namespace {

constexpr char ownName[] = "libEGL.so.1";
constexpr char desktopName[] = "desktop"; // see foundation/libgl_link.h

void linkTo(const fs::path &target, const fs::path &link) {
    std::error_code error;
    fs::create_symlink(target, link, error);
    if (error) failCommand("\"" + link.string() + "\" cannot be made: " + error.message());
}

// Links the library by its own name and the unversioned one, which some programs open first.
void linkLibrary(const fs::path &library, const fs::path &directory) {
    linkTo(library, directory / library.filename());
    linkTo(library, directory / library.filename().stem());
}

} // namespace

std::string ownLibraries() {
    return findOwnDirectory(ownName, {ZELVANE_INSTALLED_LIBRARIES, ZELVANE_BUILT_LIBRARIES});
}

RunLibraries::RunLibraries(const std::string &backEnds)
    : m_directory(ownDirectory(ownName, {ZELVANE_INSTALLED_LIBRARIES, ZELVANE_BUILT_LIBRARIES})) {
    if (backEnds.empty()) return;
    m_links.emplace();
    bool hasAny = false;
    for (const char *name : {es1LibraryName, es2LibraryName}) {
        const fs::path given = fs::absolute(backEnds) / name;
        const fs::path own = fs::path(m_directory) / name;
        const bool isGiven = fs::exists(given);
        hasAny |= isGiven;
        if (isGiven || fs::exists(own)) linkLibrary(isGiven ? given : own, m_links->path());
    }
    if (!hasAny) failCommand("\"" + backEnds + "\" has neither " + es1LibraryName + " nor " + es2LibraryName);
    linkLibrary(fs::path(m_directory) / ownName, m_links->path());
    linkTo(fs::path(m_directory) / desktopName, fs::path(m_links->path()) / desktopName);
    m_directory = m_links->path();
}

std::string RunLibraries::searchPath() const {
    return m_directory + ":" + (fs::path(m_directory) / desktopName).string();
}
