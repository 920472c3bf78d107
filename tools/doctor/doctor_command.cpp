// zelvane doctor: examines the installation and the system for problems that affect programs.
#include <filesystem>
#include <iostream>
#include <memory>

#include "foundation/product.h"
#include "tools/command/failure.h"
#include "tools/command/verbs.h"
#include "tools/doctor/diagnosis.h"

namespace {

void examine(bool asJson) {
    Diagnosis diagnosis;
    std::error_code error;
    diagnosis.facts["zelvane"] = {{"version", std::string(productVersion) + " (SDK " + productBuild + ')'},
                                  {"command", std::filesystem::read_symlink("/proc/self/exe", error).string()}};
    examineLibraries(diagnosis);
    examineBackEnds(diagnosis);
    examineXServer(diagnosis);
    examineHost(diagnosis);
    examinePreferences(diagnosis);
    examineSocket(diagnosis);
    std::cout << (asJson ? diagnosisAsJson(diagnosis) : diagnosisAsText(diagnosis));
    if (!diagnosis.findings.empty()) throw Failure{1};
}

} // namespace

void addDoctorCommand(const Verb &top) {
    const Verb doctor =
        top.verb("doctor", "Find problems that keep programs from running",
                 "Prints the libraries that programs load, the X server, the host's OpenGL, the back ends,\n"
                 "the preferences and the monitor, then each problem with a remedy.\n"
                 "Exit status: 0 no problem found, 1 problems found.");
    const auto asJson = std::make_shared<bool>(false);
    doctor.flag("--json", *asJson, "print one JSON object");
    doctor.action([asJson] { examine(*asJson); });
}
