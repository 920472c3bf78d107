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
#include "tools/profiles/export.h"
#include "tools/profiles/import.h"
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

void addImportVerb(const Verb &profiles) {
    const Verb verb = profiles.verb(
        "import", "Install a profile file into the profiles directory",
        "Lists the faults that \"zelvane profiles check\" finds. Without a profiles directory, the default one is\n"
        "created and set.\n"
        "Exit status: 0 success, 1 the file is not a profile, its name is in use, or it cannot be installed.");
    auto import = std::make_shared<ProfileImport>();
    verb.word("file", import->path, "the path of the file; - is standard input").required();
    verb.option("--name", import->name, "NAME",
                "the profile's name; by default its device, or else the name of the file")
        .checkedBy([](const std::string &name) { return std::string(name.empty() ? "the name is empty" : ""); });
    verb.flag("--replace", import->mayReplace, "overwrite an existing profile");
    verb.action([import] { importProfile(*import); });
}

void addExportVerb(const Verb &profiles) {
    const Verb verb = profiles.verb("export", "Print the text of a profile, or write it to a file",
                                    "Exit status: 0 success, 1 there is no such profile, or the file exists or cannot\n"
                                    "be written.");
    auto wanted = std::make_shared<ProfileExport>();
    verb.word("name", wanted->name, "a name that \"zelvane profiles\" lists, or Desktop").required();
    verb.word("file", wanted->path, "the path of a new file; by default standard output");
    verb.flag("--replace", wanted->mayReplace, "overwrite an existing file");
    verb.action([wanted] { exportProfile(*wanted); });
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
    addImportVerb(profiles);
    addExportVerb(profiles);
    profiles.canStandAlone();
}
