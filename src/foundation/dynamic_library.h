// A library opened at run time through a temporary symbolic link, so that the loader does not see the name of a library
// that the application may have loaded already. Copies share one handle, and the last one closes it. The use count is
// plain: keep an object and its copies on one thread at a time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class DynamicLibrary {
public:
    // Which lookups find the library's symbols: those of the whole process, or only those through this object.
    enum class Scope { everybody, owner };

    // name is the file name without a directory. Does not open the library.
    explicit DynamicLibrary(std::string name, Scope scope = Scope::everybody);
    DynamicLibrary(const DynamicLibrary &other);
    // Copies the other's handle and count, and closes nothing: the old handle stays open until the process ends.
    DynamicLibrary &operator=(const DynamicLibrary &other);
    ~DynamicLibrary();

    // Tries each directory in turn; relative ones are skipped. Closes a handle that is held first, but leaves it open
    // for copies if there are any. False when nothing could be opened.
    bool open(const std::vector<std::string> &searchPaths);
    // Finds symbols that the library has but does not export; null for no such lookup. Called for symbols that the
    // library lacks.
    using Lookup = void *(*)(const char *symbol);
    void setLookup(Lookup lookup) { m_lookup = lookup; }
    // Null when nothing is loaded, when the library lacks the symbol, or when symbol is null.
    [[nodiscard]] void *getSymbol(const char *symbol) const;
    // Keeps the library loaded until the process ends, even if it is closed. The symbol identifies the image: one of
    // the library itself, not of its dependencies. Does nothing when nothing is loaded or the library lacks the symbol.
    void keepLoaded(const char *ownSymbol) const;
    [[nodiscard]] bool isLoaded() const { return m_handle != nullptr; }
    [[nodiscard]] const std::string &name() const { return m_name; }

private:
    uint32_t *m_useCount;
    std::string m_name;
    Scope m_scope;
    void *m_handle = nullptr;
    Lookup m_lookup = nullptr;
};

// File names of the libraries on this platform. The plain one only has GLX and is null where there is no such
// library; the lookup is for symbols that it does not export.
extern const char *const hostOpenGLLibraryName;
extern const char *const hostPlainOpenGLLibraryName;
[[nodiscard]] void *findUnexportedHostFunction(const char *name);
extern const char *const es1LibraryName;
extern const char *const es2LibraryName;

// The directory of this library, then $KZRTRACE_LIB_PATH where it is set. The variable is read at every call; a
// relative one is resolved against getFirstWorkingDirectory().
[[nodiscard]] std::vector<std::string> esLibrarySearchPaths();
// The directory of this library, then the system's library directories.
[[nodiscard]] std::vector<std::string> hostLibrarySearchPaths();

// Opens the library. On failure logs the reason and returns it with nothing loaded.
[[nodiscard]] DynamicLibrary openEsLibrary(const char *name, const std::vector<std::string> &searchPaths);

// "failed to ACTION 'NAME'"
[[nodiscard]] std::string failureText(std::string_view action, std::string_view name);
