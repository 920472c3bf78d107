// A temporary directory of this process, removed with its contents at the end of the scope.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <string>

#include "foundation/paths.h"
#include "tools/command/failure.h"

class TemporaryDirectory {
public:
    TemporaryDirectory() : m_path(getTemporaryDirectory() + "zelvane-run.XXXXXX") {
        if (!mkdtemp(m_path.data())) failCommand("no directory can be created in \"" + getTemporaryDirectory() + "\"");
    }
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;
    ~TemporaryDirectory() {
        std::error_code error;
        std::filesystem::remove_all(m_path, error);
    }

    [[nodiscard]] const std::string &path() const { return m_path; }

private:
    std::string m_path;
};
