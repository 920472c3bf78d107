// A home directory for one case, with the preferences file in it.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "support/environment.h"
#include "support/file_text.h"

class PreferenceHome : public testing::Test {
protected:
    ~PreferenceHome() override { std::filesystem::remove_all(home); }

    void write(const std::string &text) const {
        std::filesystem::create_directories(directory);
        std::ofstream(file, std::ios::binary) << text;
    }
    // The text with the skeleton around the pairs of the root dict.
    void writePairs(const std::string &pairs) const {
        write("<plist version=\"1.0\"><dict>" + pairs + "</dict></plist>");
    }
    std::string text() const { return fileText(file); }

    const std::filesystem::path home = std::filesystem::path(getenv("HOME")) / "preferences";
    const std::filesystem::path directory = home / ".kzrconfig" / "Tarnwell Graphics";
    const std::filesystem::path file = directory / "com.tarnlight.Zelvane.plist";
    const std::filesystem::path temporary = file.string() + ".tmp";

private:
    const Variable m_variable{"HOME", home.string()};
};
