// The paths of this library, the user's files and temporary files. Variables are read by findVariable. All of it
// may be called from any thread that does not change the environment at the same time.
#pragma once

#include <cstdio>
#include <string>

// Directory of this library without a trailing slash, determined when the library is loaded. Empty when the loader
// cannot report it.
[[nodiscard]] const std::string &getOwnDirectory();

// The working directory at the first call. Empty when there was none.
[[nodiscard]] const std::string &getFirstWorkingDirectory();

// $HOME, or the home directory of the user database when the variable is not set. False when the result is empty.
[[nodiscard]] bool getHomeDirectory(std::string &path);

// The home directory followed by "/.kzrconfig/Tarnwell Graphics". False, with nothing appended, without a home.
[[nodiscard]] bool getConfigDirectory(std::string &path);

// $ZELVANE_PROFILE_PATH. False, with path untouched, when the variable is not set.
[[nodiscard]] bool getProfilePathFromEnvironment(std::string &path);

// The platform's directory for temporary files, with a trailing slash. On Linux $TMPDIR or /tmp, with a slash added if
// the variable has none. Empty when the platform has none.
[[nodiscard]] std::string getTemporaryDirectory();

// Null, with errno set, when the file cannot be opened or is not a regular one (ENOTSUP; EISDIR for a directory): a
// pipe would block, and a device may have no end. A privileged process opens files of its own user only (EACCES). The
// caller closes the stream.
[[nodiscard]] FILE *openForReading(const std::string &path);
