#include <filesystem>
#include <iostream>

#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"
#include "tools/command/profiles_directory.h"
#include "tools/command/verbs.h"

namespace {

struct Options {
    std::string name;
    std::string directory;
    bool none = false;
};

void useProfile(const std::string &name, std::string directory) {
    ToolPreferences preferences;
    const bool isGiven = !directory.empty();
    if (isGiven) {
        // The setting is read by programs that are started elsewhere.
        directory = std::filesystem::absolute(directory);
        if (!std::filesystem::is_directory(directory)) failCommand("\"" + directory + "\" is not a directory");
    } else {
        directory = preferences.profilesDirectory();
    }
    const bool isNew = directory.empty();
    checkProfileName(name, directory);
    if (isNew) directory = makeOwnProfilesDirectory();
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

void addUseCommand(const Verb &top) {
    const Verb use =
        top.verb("use", "Choose the device of programs that start from now on",
                 "Exit status: 0 success, 1 there is no such profile or the preferences file cannot be written,\n"
                 "2 neither a name nor --none, or both.");
    auto options = std::make_shared<Options>();
    const Word name = use.word("name", options->name, "a name that \"zelvane profiles\" lists");
    const Word none = use.flag("--none", options->none, "no device: the built-in config and every ES version");
    const Word directory = use.option("--directory", options->directory, "DIRECTORY",
                                      "the directory of profile files, which is stored too");
    none.excludes(name).excludes(directory);
    use.action([options] {
        if (options->none) return useNone();
        if (options->name.empty()) throw UsageError{"name or --none is missing"};
        useProfile(options->name, options->directory);
    });
}
