#include "tools/profiles/export.h"

#include <filesystem>
#include <fstream>
#include <iostream>

#include "tools/command/failure.h"
#include "tools/profiles/named_profile.h"

void exportProfile(const ProfileExport &wanted) {
    const std::string text = readNamedProfile(wanted.name).text;
    if (wanted.path.empty()) {
        std::cout << text;
        return;
    }
    std::error_code error;
    if (std::filesystem::exists(wanted.path, error) && !wanted.mayReplace)
        failCommand("\"" + wanted.path + "\" exists already; --replace overwrites it");
    std::ofstream file(wanted.path, std::ios::binary);
    file << text << std::flush;
    if (!file) failCommand("\"" + wanted.path + "\" cannot be written");
}
