// The result of zelvane doctor: facts by section, and the problems found.
#pragma once

#include <string>
#include <vector>

#include "tools/command/json.h"

struct Finding {
    std::string problem; // a sentence without its full stop
    std::string remedy;  // a command line, or what to do
};

struct Diagnosis {
    // An object of sections, each an object of facts by name. Null means that the fact does not exist.
    Json facts = Json::object();
    std::vector<Finding> findings;

    void add(const std::string &problem, const std::string &remedy) { findings.push_back({problem, remedy}); }
};

// Each adds a section, and waits at most ten seconds for a server.
void examineLibraries(Diagnosis &diagnosis);
void examineBackEnds(Diagnosis &diagnosis);
void examineXServer(Diagnosis &diagnosis);
// Requires an X server.
void examineHost(Diagnosis &diagnosis);
void examinePreferences(Diagnosis &diagnosis);
void examineSocket(Diagnosis &diagnosis);

[[nodiscard]] std::string diagnosisAsText(const Diagnosis &diagnosis);
[[nodiscard]] std::string diagnosisAsJson(const Diagnosis &diagnosis);
