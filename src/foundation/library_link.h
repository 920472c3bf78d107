// A symbolic link that gives the loader a new name for a library. The link is the only entry of a directory that only
// this user can write to, so that the loader finds no files of others there.
// Both are removed with the object.
#pragma once

#include <string>

class LibraryLink {
public:
    // The target is an absolute path and is not checked. The directory is created below $XDG_RUNTIME_DIR, or else below
    // the temporary directory; a failure is logged once in the process.
    explicit LibraryLink(const std::string &target);
    LibraryLink(const LibraryLink &) = delete;
    LibraryLink &operator=(const LibraryLink &) = delete;
    ~LibraryLink();

    // Empty when there is no link.
    [[nodiscard]] const std::string &path() const { return m_path; }

private:
    bool makeBelow(const std::string &parent, const std::string &target);

    std::string m_directory; // empty unless it exists
    std::string m_path;
};
