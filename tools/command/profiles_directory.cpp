#include "tools/command/profiles_directory.h"

#include <filesystem>

#include "foundation/paths.h"
#include "tools/command/failure.h"

std::string makeOwnProfilesDirectory() {
    std::string directory;
    if (!getConfigDirectory(directory)) failCommand("there is no home directory");
    directory += "/profiles";
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error) failCommand("\"" + directory + "\" cannot be created: " + error.message());
    return directory;
}
