#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/profiles/check_profile.h"
#include "tools/profiles/print_profile.h"
#include "tools/verbs.h"

namespace {

void printRow(const egl::DeviceProfile &profile, const std::string &name, const char *where, bool isChosen) {
    printf("%c %-28s  %-14s %7zu  %s\n", isChosen ? '*' : ' ', name.c_str(), versionsText(profile).c_str(),
           profile.configs.size(), where);
}

void listEmbedded(const std::string &chosen) {
    for (const std::string_view text : egl::embeddedProfiles) {
        const std::string name = egl::profileDisplayName(text);
        egl::DeviceProfile profile;
        if (readDeviceProfile(profile, text, CKZRTString(name.c_str())))
            printRow(profile, name, "built in", name == chosen);
    }
}

// The files of the directory in the order of their names. Those that are no profiles are told as a number only.
void listDirectory(const std::string &directory, const std::string &chosen) {
    std::vector<std::string> names;
    std::error_code error;
    for (const auto &entry : std::filesystem::directory_iterator(directory, error))
        names.push_back(entry.path().filename());
    if (error) std::cerr << "zelvane: profiles directory \"" << directory << "\": " << error.message() << '\n';
    std::sort(names.begin(), names.end());

    size_t others = 0;
    for (const std::string &name : names) {
        if (!egl::findEmbeddedProfile(name).empty()) {
            printf("  %-28s  a file that the built-in profile of this name hides\n", name.c_str());
            continue;
        }
        egl::DeviceProfile profile;
        if (loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(name.c_str())))
            printRow(profile, name, "file", name == chosen);
        else
            ++others;
    }
    if (others > 0) printf("\nother files in the profiles directory: %zu\n", others);
}

void listProfiles() {
    ToolPreferences preferences;
    const std::string directory = preferences.profilesDirectory();
    const std::string stored = preferences.currentProfile();
    const std::string chosen = directory.empty() ? std::string() : stored;
    printf("  %-28s  %-14s %7s  %s\n", "name", "es versions", "configs", "where");
    listEmbedded(chosen);
    if (!directory.empty()) listDirectory(directory, chosen);

    printf("\nprofiles directory: %s\n", directory.empty() ? "none" : directory.c_str());
    egl::DeviceProfile profile;
    if (stored.empty()) {
        printf("in force: none; programs find the built-in config and every ES version\n");
    } else if (directory.empty()) {
        printf("in force: none; \"%s\" is chosen, but it is read only when a profiles directory is set\n",
               stored.c_str());
    } else if (!loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(stored.c_str()))) {
        printf("in force: \"%s\", which cannot be read: EGL fails with EGL_NOT_INITIALIZED\n", stored.c_str());
    } else {
        printf("in force: %s\n", stored.c_str());
    }
}

void showProfile(const std::string &name) {
    const std::string directory = ToolPreferences().profilesDirectory();
    egl::DeviceProfile profile;
    std::string text;
    if (!loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(name.c_str()), &text))
        failCommand("there is no readable profile \"" + name + "\"; \"zelvane profiles\" lists what there is");
    printProfile(profile, text);
}

void checkFile(const std::string &path) {
    std::error_code ignored;
    std::ifstream file(path, std::ios::binary);
    if (!std::filesystem::is_regular_file(path, ignored) || !file) failCommand("\"" + path + "\" is no readable file");
    std::ostringstream text;
    text << file.rdbuf();
    const ProfileFindings findings = checkProfile(text.str(), std::filesystem::path(path).filename());
    for (const ProfileFinding &finding : findings.list) {
        std::cout << path << ':' << finding.lines << ": " << (finding.isProblem ? "" : "note: ") << finding.text
                  << '\n';
    }
    if (findings.hasProblems()) throw Failure{1};
    std::cout << path << ": reads as it looks\n";
}

} // namespace

void addProfilesCommand(CLI::App &app) {
    auto *command = app.add_subcommand("profiles", "List the device profiles, and tell which one is in force");
    command->require_subcommand(0, 1);
    command->footer("Exit status: 0 done, 1 the preferences file or the profile cannot be read.");

    auto name = std::make_shared<std::string>();
    auto *show = command->add_subcommand("show", "Print a profile: configs, extensions, limits");
    show->add_option("name", *name, "a name that \"zelvane profiles\" lists")->required();
    show->footer("Exit status: 0 done, 1 there is no such profile.");
    show->callback([name] { showProfile(*name); });

    auto path = std::make_shared<std::string>();
    auto *check = command->add_subcommand("check", "Tell what the reader makes of a profile file");
    check->add_option("file", *path, "the file, wherever it lies")->required();
    check->footer("Tells every element that the reader ignores or reads differently than it looks, with line numbers.\n"
                  "Lines with \"note:\" tell what is never read, and do no harm.\n"
                  "Exit status: 0 the file reads as it looks, 1 it does not or cannot be read.");
    check->callback([path] { checkFile(*path); });

    command->callback([command] {
        if (command->get_subcommands().empty()) listProfiles();
    });
}
