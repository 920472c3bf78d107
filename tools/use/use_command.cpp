#include <filesystem>
#include <iostream>

#include "foundation/paths.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"
#include "tools/command/verbs.h"

namespace {

std::string makeOwnDirectory() {
    std::string directory;
    if (!getConfigDirectory(directory)) failCommand("there is no home directory");
    directory += "/profiles";
    std::error_code error;
    std::filesystem::create_directories(directory, error);
    if (error) failCommand("\"" + directory + "\" cannot be made: " + error.message());
    return directory;
}

void useProfile(const std::string &name, std::string directory) {
    ToolPreferences preferences;
    const bool isGiven = !directory.empty();
    if (isGiven) {
        // The setting is read by programs that run elsewhere.
        directory = std::filesystem::absolute(directory);
        if (!std::filesystem::is_directory(directory)) failCommand("\"" + directory + "\" is no directory");
    } else {
        directory = preferences.profilesDirectory();
    }
    const bool isNew = directory.empty();
    checkProfileName(name, directory);
    if (isNew) directory = makeOwnDirectory();
    if (directory != preferences.storedDirectory()) {
        std::cout << "profiles directory: now " << directory
                  << (isNew     ? "; none was set, and without one no profile is read"
                      : isGiven ? ""
                                : ", from ZELVANE_PROFILE_PATH")
                  << '\n';
    }
    preferences.setProfile(directory, name);
    std::cout << "profile: " << name << ", for every program that starts from now on\n";
}

void useNone() {
    ToolPreferences preferences;
    const std::string old = preferences.currentProfile();
    if (!old.empty()) preferences.removeProfile();
    std::cout << "profile: none" << (old.empty() ? "" : "; it was " + old) << '\n';
}

} // namespace

void addUseCommand(CLI::App &app) {
    auto *command = app.add_subcommand("use", "Choose the device that programs find from now on");
    auto name = std::make_shared<std::string>();
    auto directory = std::make_shared<std::string>();
    auto none = std::make_shared<bool>(false);
    auto *nameOption = command->add_option("name", *name, "a name that \"zelvane profiles\" lists")->type_name("");
    auto *noneOption = command->add_flag("--none", *none, "no device: the built-in config and every ES version");
    auto *directoryOption =
        command->add_option("--directory", *directory, "where profile files lie; stored too")->type_name("DIRECTORY");
    noneOption->excludes(nameOption)->excludes(directoryOption);
    command->footer("Exit status: 0 done, 1 there is no such profile or the preferences file cannot be written,\n"
                    "2 neither a name nor --none, or both.");
    command->callback([=] {
        if (*none) return useNone();
        if (name->empty()) throw CLI::RequiredError("name or --none");
        useProfile(*name, *directory);
    });
}
