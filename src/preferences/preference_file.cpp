#include "preferences/preference_file.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

#include "foundation/environment.h"
#include "foundation/paths.h"
#include "preferences/fnv1_hash.h"

namespace {

constexpr std::string_view fileTemplate = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                          "<!DOCTYPE plist PUBLIC \"-//Apple Computer//DTD PLIST 1.0//EN\" "
                                          "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                          "<plist version=\"1.0\">\n"
                                          "<dict>\n"
                                          "</dict>\n"
                                          "</plist>\n";

constexpr mode_t directoryMode = 0775;

std::string fileIn(const std::string &directory, const std::string &name) {
    return directory + "/com.tarnlight." + name + ".plist";
}

// Only the last step is checked: a directory on the way may exist already or be inaccessible.
bool makeDirectories(const std::string &directory) {
    size_t slash = directory.find('/');
    while ((slash = directory.find('/', slash + 1)) != std::string::npos) {
        mkdir(directory.substr(0, slash).c_str(), directoryMode);
    }
    return mkdir(directory.c_str(), directoryMode) == 0 || errno == EEXIST;
}

// Writes the template. A file that another process has filled meanwhile is left as it is.
bool createFile(const std::string &path) {
    const int descriptor = open(path.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    if (descriptor < 0) return false;
    struct stat found {};
    const bool isEmpty = fstat(descriptor, &found) == 0 && found.st_size == 0;
    FILE *stream = isEmpty ? fdopen(descriptor, "wb") : nullptr;
    if (!stream) {
        close(descriptor);
        return !isEmpty;
    }
    fwrite(fileTemplate.data(), 1, fileTemplate.size(), stream);
    fclose(stream);
    return true;
}

// False, with error set, when the file does not exist and cannot be created. An existing file may still be unreadable.
bool ensureFile(const std::string &directory, const std::string &path, std::string &error) {
    struct stat existing {};
    if (stat(path.c_str(), &existing) == 0) return true;
    if (!makeDirectories(directory)) {
        error = std::string("Failed to create preference directory structure: ") + strerror(errno);
        return false;
    }
    if (!createFile(path)) {
        error = std::string("Failed to create preference file: ") + strerror(errno);
        return false;
    }
    return true;
}

// For privileged processes, which write no file.
FILE *openOrTemplate(const std::string &path) {
    if (FILE *stream = openForReading(path)) return stream;
    return fmemopen(const_cast<char *>(fileTemplate.data()), fileTemplate.size(), "r");
}

} // namespace

bool KZRPreferencesUnix::getPreferenceDirectory(std::string &directory, bool systemWide) {
    directory.clear();
    if (systemWide) {
        directory = "/etc/.kzrconfig/Tarnwell Graphics";
        return true;
    }
    if (const char *own = findVariable("ZELVANE_PREFERENCES_DIRECTORY"); own && *own) {
        directory = own;
        return true;
    }
    return getConfigDirectory(directory);
}

PreferenceFile KZRPreferencesUnix::openPreferenceFile(const std::string &name, int mode, bool systemWide, bool atomic,
                                                      std::string &error) {
    PreferenceFile file;
    std::string directory;
    if (!getPreferenceDirectory(directory, systemWide)) {
        error = "Failed to retrieve $(HOME) variable.";
        return file;
    }
    file.path = fileIn(directory, name);
    if (hasForeignRights()) {
        file.stream = mode == readPreferences ? openOrTemplate(file.path) : nullptr;
        errno = EACCES;
    } else if (mode == readPreferences) {
        if (!ensureFile(directory, file.path, error)) return file;
        file.stream = openForReading(file.path);
    } else {
        const bool usesTemporaryName = mode == writePreferences && atomic;
        file.stream = fopen((usesTemporaryName ? file.path + ".tmp" : file.path).c_str(), "wb");
    }
    if (!file.stream) error = std::string("Failed to open preference file: ") + strerror(errno);
    return file;
}

void KZRPreferencesUnix::closePreferenceFile(PreferenceFile file, bool commit) {
    if (!file.stream) return;
    const bool isWhole = !ferror(file.stream);
    const bool isClosed = fclose(file.stream) == 0;
    if (!commit) return;
    const std::string temporary = file.path + ".tmp";
    // A failed write, such as on a full disk, keeps the old file.
    if (!isWhole || !isClosed) {
        remove(temporary.c_str());
        return;
    }
    // Deliberately two steps: the old file is removed before the new one is renamed.
    remove(file.path.c_str());
    rename(temporary.c_str(), file.path.c_str());
}

bool KZRPreferencesUnix::getPreferenceFileStamp(const std::string &name, bool systemWide, uint32_t &stamp) {
    std::string directory;
    // Without a home directory the path is one at the root, where the file does not exist.
    (void)getPreferenceDirectory(directory, systemWide);
    struct stat found {};
    if (stat(fileIn(directory, name).c_str(), &found) != 0) return false;

    uint32_t hash = fnv1Basis;
    for (uint64_t seconds = static_cast<uint64_t>(found.st_mtime), byte = 0; byte < sizeof(seconds); ++byte) {
        hash = fnv1Step(hash, static_cast<uint8_t>(seconds >> (8 * byte)));
    }
    stamp = hash;
    return true;
}
