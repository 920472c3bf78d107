// A library opened at run time through a temporary symbolic link, so that the loader never meets the name of a library
// that the application may have loaded already. Copies share one handle, and the last one closes it. The use count is
// plain: keep an object and its copies on one thread at a time.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class DynamicLibrary {
public:
    // Who finds the library's symbols: everybody in the process, or we alone.
    enum class Scope { everybody, owner };

    // name is the file name without a directory. Opens nothing.
    explicit DynamicLibrary(std::string name, Scope scope = Scope::everybody);
    DynamicLibrary(const DynamicLibrary &other);
    // Takes over the other's handle and count and closes nothing: the old handle stays open for good.
    DynamicLibrary &operator=(const DynamicLibrary &other);
    ~DynamicLibrary();

    // Tries each directory in turn; a relative one has nothing. Closes a handle that is held first, but leaves it to
    // the copies if there are any. False when nothing could be opened.
    bool open(const std::vector<std::string> &searchPaths);
    // Who knows what a library has and does not export; null for nothing. Symbols that the library lacks are asked of
    // it.
    using Lookup = void *(*)(const char *symbol);
    void setLookup(Lookup lookup) { m_lookup = lookup; }
    // Null when nothing is loaded, when the library lacks the symbol, or when symbol is null.
    [[nodiscard]] void *getSymbol(const char *symbol) const;
    // The library stays in the process for good, whoever closes it. The symbol says which image that is: the library's
    // own and not one of its dependencies'. Does nothing when nothing is loaded or the library lacks the symbol.
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

// File names of the libraries on this platform. The host's OpenGL without its window system is null where it is not
// apart; the look-up is for what it does not export.
extern const char *const hostOpenGLLibraryName;
extern const char *const hostPlainOpenGLLibraryName;
[[nodiscard]] void *findUnexportedHostFunction(const char *name);
extern const char *const es1LibraryName;
extern const char *const es2LibraryName;

// The directory of this library, then $KZRTRACE_LIB_PATH where it is set. The variable is read at every call; a
// relative one counts from getFirstWorkingDirectory().
[[nodiscard]] std::vector<std::string> esLibrarySearchPaths();
// The directory of this library, then the system's library directories.
[[nodiscard]] std::vector<std::string> hostLibrarySearchPaths();

// Opens the library, or logs why not and gives it back with nothing loaded.
[[nodiscard]] DynamicLibrary openEsLibrary(const char *name, const std::vector<std::string> &searchPaths);

// "failed to ACTION 'NAME'"
[[nodiscard]] std::string failureText(std::string_view action, std::string_view name);
