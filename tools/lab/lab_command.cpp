// zelvane lab: runs a program on every device, and writes one page with the results.
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <sstream>
#include <thread>

#include "tools/command/failure.h"
#include "tools/command/nearest.h"
#include "tools/command/verbs.h"
#include "tools/lab/devices.h"
#include "tools/lab/lab.h"
#include "tools/lab/verdict.h"
#include "tools/lab/virtual_server.h"
#include "tools/run/checks.h"

namespace {

struct Words {
    std::string devices, reference, frames, seconds, out = "zelvane-lab", jobs, failOn = "start";
    bool all = false;
    bool isHere = false;
};

// Parses a positive number, which must be an integer.
double numberOf(const std::string &option, const std::string &word) {
    char *end = nullptr;
    const double number = strtod(word.c_str(), &end);
    constexpr double most = 1e6;
    if (word.empty() || *end != '\0' || !(number > 0) || number > most)
        throw UsageError{option + ": \"" + word + "\" is not a positive number"};
    return number;
}

std::set<std::string> readKinds(const std::string &words) {
    std::set<std::string> kinds;
    std::istringstream list(words);
    for (std::string kind; std::getline(list, kind, ',');) {
        if (std::ranges::find(faultKinds(), kind) == faultKinds().end())
            throw UsageError{"--fail-on: \"" + kind + "\" is not one of start, error, refusal, lacking, picture" +
                             suggestion(kind, faultKinds())};
        kinds.insert(kind);
    }
    return kinds;
}

std::string readReference(const std::string &name, const std::vector<std::string> &devices) {
    if (name.empty()) return devices.front();
    if (std::ranges::find(devices, name) == devices.end())
        failCommand("--reference: \"" + name + "\" is not one of the selected devices" + suggestion(name, devices));
    return name;
}

LabOptions readOptions(const Words &words, const std::vector<std::string> &program) {
    LabOptions options;
    if (!words.frames.empty())
        options.frames = static_cast<uint64_t>(std::max(1.0, numberOf("--frames", words.frames)));
    if (options.frames == 0) options.seconds = words.seconds.empty() ? 3 : numberOf("--seconds", words.seconds);
    options.isHere = words.isHere;
    const unsigned processors = std::max(1u, std::thread::hardware_concurrency());
    // Windows of programs on one display would cover each other.
    options.jobs = words.isHere         ? 1
                   : words.jobs.empty() ? processors
                                        : static_cast<unsigned>(std::max(1.0, numberOf("--jobs", words.jobs)));
    options.failOn = readKinds(words.failOn);
    options.devices = words.devices.empty() ? allDevices() : readDevices(words.devices);
    options.reference = readReference(words.reference, options.devices);
    options.jobs = std::min(options.jobs, static_cast<unsigned>(options.devices.size()));
    options.out = std::filesystem::absolute(words.out).string();
    options.program = program;
    return options;
}

void runLabCommand(const Words &words, const std::vector<std::string> &program) {
    if (program.empty()) throw UsageError{"PROGRAM is missing"};
    const LabOptions options = readOptions(words, program);
    if (options.isHere) {
        checkXServer();
    } else if (!VirtualServer::isThere()) {
        failCommand(
            "there is no Xvfb, which provides each device's X server: install it (Debian: xvfb), or use --here");
    }
    std::vector<DeviceResult> results;
    const int stoppedBy = runLab(options, results);
    const auto passed = std::ranges::count(results, true, &DeviceResult::passes);
    std::cout << passed << " of " << results.size() << " devices pass; " << options.out << "/index.html\n";
    if (stoppedBy != 0) throw Failure{128 + stoppedBy};
    if (passed != std::ssize(results)) throw Failure{1};
}

} // namespace

void addLabCommand(const Verb &top, const std::vector<std::string> &program) {
    const Verb lab = top.verb(
        "lab", "Run a program on every device: zelvane lab [OPTIONS] [--] PROGRAM [ARGUMENTS]",
        "Each device has an X server of its own (Xvfb), a journal and a time limit. DIR/index.html shows them in a\n"
        "table with their last frames; lab.json and junit.xml contain the same data for programs.\n"
        "Exit status: 0 all devices pass, 1 a device fails or the lab cannot run, 2 invalid command line.");
    auto words = std::make_shared<Words>();
    const Word devices = lab.option("--devices", words->devices, "NAME,...",
                                    "these devices; \"zelvane profiles\" lists them, and \"Desktop\" is one");
    lab.flag("--all", words->all, "all devices, which is the default").excludes(devices);
    const Word frames = lab.option("--frames", words->frames, "N", "end each run after this frame");
    lab.option("--seconds", words->seconds, "S", "or this time after its first frame; default: 3").excludes(frames);
    lab.option("--out", words->out, "DIR", "the directory of the output; default: zelvane-lab");
    const Word jobs = lab.option("--jobs", words->jobs, "N", "devices at a time; default: the number of processors");
    lab.flag("--here", words->isHere, "run on the current display, one device after another").excludes(jobs);
    lab.option("--reference", words->reference, "NAME", "the device to compare the pictures with; default: the first");
    lab.option("--fail-on", words->failOn, "KIND,...",
               "what fails a device: start, error, refusal, lacking, picture; default: start");
    lab.action([words, &program] { runLabCommand(*words, program); });
}
