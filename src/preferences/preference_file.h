// The file operations of the property-list store: finds, creates, opens, commits and stamps the preferences file.
// Holds no data and takes no lock.
#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

struct PreferenceFile {
    FILE *stream = nullptr; // null when the file could not be opened
    std::string path;       // the final name, also while a temporary one is written
};

inline constexpr int readPreferences = 0;
inline constexpr int writePreferences = 1;

class KZRPreferencesImpl {
public:
    // $ZELVANE_PREFERENCES_DIRECTORY if it is set, else a directory in the user's home. False, with directory empty,
    // when there is neither.
    [[nodiscard]] virtual bool getPreferenceDirectory(std::string &directory, bool systemWide) = 0;
    // Reading creates a missing file, and its directories, from a template without keys. Every mode but reading
    // writes: an atomic writePreferences into PATH.tmp, anything else into the file itself. Without a stream, error
    // describes why. A privileged process writes nothing: it reads the template if its user has no file. Each record
    // must be passed to closePreferenceFile.
    [[nodiscard]] virtual PreferenceFile openPreferenceFile(const std::string &name, int mode, bool systemWide,
                                                            bool atomic, std::string &error) = 0;
    // A commit renames PATH.tmp to the file. Does nothing without a stream.
    virtual void closePreferenceFile(PreferenceFile file, bool commit) = 0;
    // A hash of the file's modification time. False, with stamp untouched, when there is no such file.
    [[nodiscard]] virtual bool getPreferenceFileStamp(const std::string &name, bool systemWide, uint32_t &stamp) = 0;
    virtual ~KZRPreferencesImpl() = default;
};

class KZRPreferencesUnix : public KZRPreferencesImpl {
public:
    [[nodiscard]] bool getPreferenceDirectory(std::string &directory, bool systemWide) override;
    [[nodiscard]] PreferenceFile openPreferenceFile(const std::string &name, int mode, bool systemWide, bool atomic,
                                                    std::string &error) override;
    void closePreferenceFile(PreferenceFile file, bool commit) override;
    [[nodiscard]] bool getPreferenceFileStamp(const std::string &name, bool systemWide, uint32_t &stamp) override;
};
