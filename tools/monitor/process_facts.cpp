#include "tools/monitor/process_facts.h"

#include <ctime>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <unistd.h>

#include "foundation/paths.h"
#include "foundation/product.h"
#include "preferences/preference_file.h"
#include "preferences/property_list_tree.h"
#include "preferences/settings.h"

namespace {

std::string fileOf(pid_t process, const char *name) {
    return "/proc/" + std::to_string(process) + '/' + name;
}

// The value at the start of the program.
std::string variableOf(pid_t process, const std::string &name) {
    std::ifstream file(fileOf(process, "environ"), std::ios::binary);
    for (std::string entry; std::getline(file, entry, '\0');) {
        if (entry.starts_with(name + '=')) return entry.substr(name.size() + 1);
    }
    return {};
}

int64_t startOf(pid_t process) {
    std::ifstream file(fileOf(process, "stat"));
    std::string text;
    std::getline(file, text);
    // The command name before it may contain any characters, parentheses and blanks too.
    const size_t name = text.rfind(')');
    if (name == std::string::npos) return 0;
    std::istringstream fields(text.substr(name + 1));
    std::string skipped;
    for (int field = 3; field < 22; ++field)
        fields >> skipped;
    int64_t ticks = 0;
    fields >> ticks;
    timespec sinceBoot{}, sinceEpoch{};
    clock_gettime(CLOCK_BOOTTIME, &sinceBoot);
    clock_gettime(CLOCK_REALTIME, &sinceEpoch);
    const int64_t bootMs =
        (sinceEpoch.tv_sec - sinceBoot.tv_sec) * 1000 + (sinceEpoch.tv_nsec - sinceBoot.tv_nsec) / 1000000;
    return ticks ? bootMs + ticks * 1000 / sysconf(_SC_CLK_TCK) : 0;
}

std::string preferencesDirectoryOf(pid_t process) {
    const std::string own = variableOf(process, "ZELVANE_PREFERENCES_DIRECTORY");
    const std::string home = variableOf(process, "HOME");
    return own.empty() && !home.empty() ? home + "/.kzrconfig/Tarnwell Graphics" : own;
}

std::string settingOf(tinyxml2::XMLDocument &document, const char *name) {
    const auto *element = findValue(document, splitKey(settingKey(name)));
    const char *text = element ? element->GetText() : nullptr;
    return text ? text : "";
}

// As Settings reads it, but for another process and without creating a file.
std::string deviceOf(pid_t process) {
    const std::string path = preferencesDirectoryOf(process) + "/com.tarnlight." + productName + ".plist";
    const std::unique_ptr<FILE, int (*)(FILE *)> file(openForReading(path), fclose);
    tinyxml2::XMLDocument document;
    if (!file || document.LoadFile(file.get()) != tinyxml2::XML_SUCCESS) return {};
    const bool hasDirectory =
        !settingOf(document, "profiles_directory").empty() || !variableOf(process, "ZELVANE_PROFILE_PATH").empty();
    return hasDirectory ? settingOf(document, "current_profile") : std::string();
}

} // namespace

ProcessFacts readProcessFacts(pid_t process) {
    std::error_code unknown;
    const auto program = std::filesystem::read_symlink(fileOf(process, "exe"), unknown);
    return {program.string(), startOf(process), deviceOf(process)};
}
