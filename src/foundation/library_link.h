// A symbolic link by which the loader opens a library under a name that it has never met. The link lies alone in a
// directory that nobody but this user may write to, so that the loader finds nothing there that others have put down.
// Both go with the object.
#pragma once

#include <string>

class LibraryLink {
public:
    // The target is a whole path and is not looked at. The directory is made below $XDG_RUNTIME_DIR, or else below the
    // temporary directory; a failure there is told on the log, once in the process.
    explicit LibraryLink(const std::string &target);
    LibraryLink(const LibraryLink &) = delete;
    LibraryLink &operator=(const LibraryLink &) = delete;
    ~LibraryLink();

    // Empty when there is no link.
    [[nodiscard]] const std::string &path() const { return m_path; }

private:
    bool makeBelow(const std::string &parent, const std::string &target);

    std::string m_directory; // empty unless it is there
    std::string m_path;
};
