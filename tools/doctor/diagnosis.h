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
    // Of objects: a section's name, then the names of its facts. Null is a fact that there is none.
    Json facts = Json::object();
    std::vector<Finding> findings;

    void add(const std::string &problem, const std::string &remedy) { findings.push_back({problem, remedy}); }
};

// Each adds a section. None waits longer than ten seconds for a server.
void examineLibraries(Diagnosis &diagnosis);
void examineBackEnds(Diagnosis &diagnosis);
void examineXServer(Diagnosis &diagnosis);
// Only with an X server.
void examineHost(Diagnosis &diagnosis);
void examinePreferences(Diagnosis &diagnosis);
void examineSocket(Diagnosis &diagnosis);

[[nodiscard]] std::string diagnosisAsText(const Diagnosis &diagnosis);
[[nodiscard]] std::string diagnosisAsJson(const Diagnosis &diagnosis);
