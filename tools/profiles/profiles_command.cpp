#include <filesystem>
#include <iostream>

#include "profiles/profile_reader.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profile_names.h"
#include "tools/command/text_file.h"
#include "tools/command/verbs.h"
#include "tools/profiles/check_profile.h"
#include "tools/profiles/diff_command.h"
#include "tools/profiles/print_profile.h"
#include "tools/profiles/profile_list.h"

namespace {

struct Options {
    bool asJson = false;
    bool asNames = false;
    std::string name; // of show
    std::string path; // of check
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
    const ProfileFindings findings = checkProfile(readTextFile(path), std::filesystem::path(path).filename());
    for (const ProfileFinding &finding : findings.list()) {
        std::cout << path << ':' << finding.lines << ": " << (finding.isProblem ? "" : "note: ") << finding.text
                  << '\n';
    }
    if (findings.hasProblems()) throw Failure{1};
    std::cout << path << ": no faults\n";
}

} // namespace

void addProfilesCommand(const Verb &top) {
    const Verb profiles = top.verb("profiles", "List the device profiles, and show the current one",
                                   "Exit status: 0 success, 1 the preferences file or the profile cannot be read.");
    auto options = std::make_shared<Options>();
    const Word json = profiles.flag("--json", options->asJson, "print one JSON object");
    profiles.flag("--names", options->asNames, "print only the names, one per line").excludes(json);
    profiles.action([options] {
        const ProfileList list = listProfiles();
        std::cout << (options->asJson ? listAsJson(list) : options->asNames ? listAsNames(list) : listAsText(list));
    });

    const Verb show = profiles.verb("show", "Print a profile: configs, extensions, limits",
                                    "Exit status: 0 success, 1 there is no such profile.");
    show.word("name", options->name, "a name that \"zelvane profiles\" lists").required();
    show.action([options] { showProfile(options->name); });

    const Verb check =
        profiles.verb("check", "Check a profile file",
                      "Lists the elements that the reader ignores or reads in an unexpected way, with line numbers.\n"
                      "Lines with \"note:\" list harmless elements that are never read.\n"
                      "Exit status: 0 no faults, 1 the file has faults or cannot be read.");
    check.word("file", options->path, "the path of the file").required();
    check.action([options] { checkFile(options->path); });
    addProfilesDiffCommand(profiles);
    profiles.canStandAlone();
}
