#include "foundation/dynamic_library.h"

#include <dlfcn.h>
#include <map>
#include <mutex>
#include <sys/stat.h>
#include <utility>

#include "foundation/environment.h"
#include "foundation/library_link.h"
#include "foundation/log.h"
#include "foundation/paths.h"
#include "foundation/platform/library_directories.h"

namespace {

// The link through which each file was loaded. The loader keeps every name of a loaded library and compares them all at
// each open: a file that is still loaded is opened by the name that it has already.
class LinkNames {
public:
    // Null when this class has not loaded the file.
    [[nodiscard]] void *reopen(const struct stat &file, int scope) {
        const std::lock_guard lock(m_mutex);
        const auto known = m_names.find({file.st_dev, file.st_ino});
        return known == m_names.end() ? nullptr : dlopen(known->second.c_str(), RTLD_LAZY | RTLD_NOLOAD | scope);
    }
    void note(const struct stat &file, const std::string &name) {
        const std::lock_guard lock(m_mutex);
        m_names[{file.st_dev, file.st_ino}] = name;
    }

private:
    std::mutex m_mutex;
    std::map<std::pair<dev_t, ino_t>, std::string> m_names;
};

LinkNames &linkNames() {
    static LinkNames &names = *new LinkNames;
    return names;
}

void *openThroughLink(const std::string &path, int scope) {
    // A relative path would be resolved against the link's directory, which holds no other file.
    if (!path.starts_with('/')) return nullptr;
    struct stat file {};
    if (stat(path.c_str(), &file) != 0) return nullptr;
    if (void *const handle = linkNames().reopen(file, scope)) return handle;

    const LibraryLink link(path);
    if (link.path().empty()) return nullptr;
    void *const handle = dlopen(link.path().c_str(), RTLD_LAZY | scope);
    if (handle) linkNames().note(file, link.path());
    return handle;
}

} // namespace

DynamicLibrary::DynamicLibrary(std::string name, Scope scope)
    : m_useCount(new uint32_t(1)), m_name(std::move(name)), m_scope(scope) {}

DynamicLibrary::DynamicLibrary(const DynamicLibrary &other)
    : m_useCount(other.m_useCount), m_name(other.m_name), m_scope(other.m_scope), m_handle(other.m_handle),
      m_lookup(other.m_lookup) {
    ++*m_useCount;
}

DynamicLibrary &DynamicLibrary::operator=(const DynamicLibrary &other) {
    if (this == &other) return *this;
    ++*other.m_useCount;
    if (--*m_useCount == 0) delete m_useCount;
    m_useCount = other.m_useCount;
    m_name = other.m_name;
    m_scope = other.m_scope;
    m_handle = other.m_handle;
    m_lookup = other.m_lookup;
    return *this;
}

DynamicLibrary::~DynamicLibrary() {
    if (--*m_useCount > 0) return;
    if (m_handle) dlclose(m_handle);
    delete m_useCount;
}

bool DynamicLibrary::open(const std::vector<std::string> &searchPaths) {
    if (*m_useCount > 1) {
        // Copies keep the old handle, and the last one closes it.
        --*m_useCount;
        m_useCount = new uint32_t(1);
    } else if (m_handle) {
        dlclose(m_handle);
    }
    m_handle = nullptr;
    const int scope = m_scope == Scope::everybody ? RTLD_GLOBAL : RTLD_LOCAL;
    for (const auto &directory : searchPaths) {
        m_handle = openThroughLink(directory + "/" + m_name, scope);
        if (m_handle) return true;
    }
    return false;
}

void *DynamicLibrary::getSymbol(const char *symbol) const {
    if (!m_handle || !symbol) return nullptr;
    void *const found = dlsym(m_handle, symbol);
    return found || !m_lookup ? found : m_lookup(symbol);
}

void DynamicLibrary::keepLoaded(const char *ownSymbol) const {
    Dl_info image{};
    const void *address = getSymbol(ownSymbol);
    if (!address || dladdr(address, &image) == 0 || !image.dli_fname) return;
    // The loader finds the library by the name that it was loaded under, although the link no longer exists. The flag
    // applies to the loaded library from then on.
    if (void *handle = dlopen(image.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE)) dlclose(handle);
}

std::vector<std::string> esLibrarySearchPaths() {
    std::vector<std::string> paths{getOwnDirectory()};
    if (const char *extra = findVariable("KZRTRACE_LIB_PATH")) {
        paths.emplace_back(*extra == '/' ? extra : getFirstWorkingDirectory() + "/" + extra);
    }
    return paths;
}

std::vector<std::string> hostLibrarySearchPaths() {
    auto paths = systemLibraryDirectories();
    paths.insert(paths.begin(), getOwnDirectory());
    return paths;
}

DynamicLibrary openEsLibrary(const char *name, const std::vector<std::string> &searchPaths) {
    DynamicLibrary library(name);
    if (!library.open(searchPaths)) logMessage(LogError, "%s", failureText("load library", name).c_str());
    return library;
}

std::string failureText(std::string_view action, std::string_view name) {
    std::string text = "failed to ";
    text.append(action).append(" '").append(name).append("'");
    return text;
}
