#include <cerrno>
#include <cstring>
#include <filesystem>
#include <iostream>

#include "foundation/paths.h"
#include "profiles/profile_reader.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"
#include "tools/command/verbs.h"
#include "tools/profiles/check_profile.h"
#include "tools/profiles/print_profile.h"
#include "tools/profiles/profile_list.h"

namespace {

struct Options {
    bool asJson = false;
    bool asNames = false;
};

void showProfile(const std::string &name) {
    const std::string directory = ToolPreferences().profilesDirectory();
    checkProfileName(name, directory);
    egl::DeviceProfile profile;
    std::string text;
    if (loadDeviceProfile(profile, CKZRTString(directory.c_str()), CKZRTString(name.c_str()), &text))
        printProfile(profile, text);
}

void checkFile(const std::string &path) {
    FILE *file = openForReading(path);
    if (!file) failCommand("\"" + path + "\" cannot be read: " + strerror(errno));
    std::string text;
    char bytes[4096];
    while (const size_t count = fread(bytes, 1, sizeof bytes, file))
        text.append(bytes, count);
    fclose(file);
    const ProfileFindings findings = checkProfile(text, std::filesystem::path(path).filename());
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
    auto options = std::make_shared<Options>();
    auto *json = command->add_flag("--json", options->asJson, "print one JSON object");
    command->add_flag("--names", options->asNames, "print the names alone, one a line")->excludes(json);
    command->footer("Exit status: 0 done, 1 the preferences file or the profile cannot be read.");

    auto name = std::make_shared<std::string>();
    auto *show = command->add_subcommand("show", "Print a profile: configs, extensions, limits");
    show->add_option("name", *name, "a name that \"zelvane profiles\" lists")->type_name("")->required();
    show->footer("Exit status: 0 done, 1 there is no such profile.");
    show->callback([name] { showProfile(*name); });

    auto path = std::make_shared<std::string>();
    auto *check = command->add_subcommand("check", "Tell what the reader makes of a profile file");
    check->add_option("file", *path, "the file, wherever it lies")->type_name("")->required();
    check->footer("Tells every element that the reader ignores or reads differently than it looks, with line numbers.\n"
                  "Lines with \"note:\" tell what is never read, and do no harm.\n"
                  "Exit status: 0 the file reads as it looks, 1 it does not or cannot be read.");
    check->callback([path] { checkFile(*path); });

    command->callback([command, options] {
        if (!command->get_subcommands().empty()) return;
        const ProfileList list = listProfiles();
        std::cout << (options->asJson ? listAsJson(list) : options->asNames ? listAsNames(list) : listAsText(list));
    });
}
