#include "tools/profiles/import.h"

#include <tinyxml2.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>

#include "profiles/embedded_profiles.h"
#include "profiles/profile_reader.h"
#include "tools/command/failure.h"
#include "tools/command/preferences.h"
#include "tools/command/profiles_directory.h"
#include "tools/command/text_file.h"
#include "tools/profiles/check_profile.h"

namespace fs = std::filesystem;

namespace {

std::string readText(const std::string &path) {
    if (path != "-") return readTextFile(path);
    return {std::istreambuf_iterator<char>(std::cin), {}};
}

std::string deviceOf(const std::string &text) {
    tinyxml2::XMLDocument document;
    document.Parse(text.data(), text.size());
    const auto *const profile = document.FirstChildElement("profile");
    const auto *const device = profile ? profile->FirstChildElement("device") : nullptr;
    return device && device->GetText() ? device->GetText() : "";
}

std::string nameFor(const ProfileImport &import, const std::string &text) {
    if (!import.name.empty()) return import.name;
    const std::string device = deviceOf(text);
    if (!device.empty()) return device;
    if (import.path == "-") failCommand("the profile has no device: set a name with --name");
    const fs::path file = fs::path(import.path).filename();
    return file.extension() == ".xml" ? file.stem() : file;
}

// The name becomes that of a file.
void checkName(const std::string &name) {
    const std::string quoted = "\"" + name + "\"";
    const bool isPath = name.find('/') != std::string::npos || name == "." || name == "..";
    const bool isLine = std::ranges::none_of(name, [](unsigned char letter) { return letter < ' ' || letter == 0x7F; });
    if (isPath) failCommand(quoted + " is a path and not a name: set another name with --name");
    if (!isLine) failCommand("the name has control characters: set another name with --name");
    if (!egl::findEmbeddedProfile(name).empty())
        failCommand("the built-in profile " + quoted + " hides files of its name: set another name with --name");
}

// A text that the library cannot load is rejected; other faults are only reported.
void checkText(const std::string &path, const std::string &name, const std::string &text) {
    for (const ProfileFinding &finding : checkProfile(text, name).list()) {
        if (finding.isProblem) std::cout << path << ':' << finding.lines << ": " << finding.text << '\n';
    }
    egl::DeviceProfile profile;
    if (!readDeviceProfile(profile, text, CKZRTString(name.c_str())))
        failCommand("\"" + path + "\" is not a profile: nothing was installed");
}

std::string directoryInForce() {
    ToolPreferences preferences;
    std::string directory = preferences.profilesDirectory();
    if (!directory.empty()) return directory;
    directory = makeOwnProfilesDirectory();
    preferences.setDirectory(directory);
    const std::string chosen = preferences.currentProfile();
    std::cout << "profiles directory: now " << directory << "; none was set"
              << (chosen.empty() ? "" : ", so that the profile \"" + chosen + "\" had no effect; it is now in use")
              << '\n';
    return directory;
}

// Programs that start meanwhile read the old file or the new one, and never a part of it.
void writeWhole(const fs::path &path, const std::string &text) {
    const fs::path part = path.parent_path() / (".importing-" + path.filename().string());
    std::ofstream(part, std::ios::binary) << text << std::flush;
    std::error_code error;
    const bool isWhole = fs::file_size(part, error) == text.size() && !error;
    if (isWhole) fs::rename(part, path, error);
    if (isWhole && !error) return;
    std::error_code ignored;
    fs::remove(part, ignored);
    failCommand("\"" + path.string() + "\" cannot be written" + (error ? ": " + error.message() : ""));
}

} // namespace

void importProfile(const ProfileImport &import) {
    const std::string text = readText(import.path);
    const std::string name = nameFor(import, text);
    checkName(name);
    checkText(import.path, name, text);

    const fs::path directory = directoryInForce();
    std::error_code error;
    fs::create_directories(directory, error);
    if (error) failCommand("\"" + directory.string() + "\" cannot be created: " + error.message());
    const fs::path file = directory / name;
    if (fs::exists(fs::symlink_status(file, error)) && !import.mayReplace)
        failCommand("\"" + file.string() + "\" exists already; --replace overwrites it");
    writeWhole(file, text);
    std::cout << "installed: " << file.string() << "\nprofile: " << name << "; \"zelvane use\" selects it\n";
}
