// The result of a run on one device.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "tools/lab/picture.h"

struct LabRefusal {
    std::string call, values, why, help;
    bool isMadeGood = false; // a later call of the name succeeded
};

struct LabFinding {
    std::string what, name, call, whole;
    uint64_t count = 1;
};

struct LabGlError {
    std::string call, error, arguments;
    uint64_t count = 1;
};

struct DeviceResult {
    std::string device;
    // From the journal. The first four are empty for a program without a context.
    std::string esVersion, renderer, host;
    std::string config; // its id and sizes as text
    bool hasContext = false;
    uint64_t frames = 0;
    double framesPerSecond = 0;
    std::vector<LabRefusal> refusals;
    std::vector<LabFinding> lacking;
    std::vector<LabGlError> glErrors;
    // The length of the run.
    double seconds = 0;
    std::string end; // as text
    bool endedWell = false;
    std::string logTail;
    std::optional<Picture> picture;              // of the last frame
    std::optional<PictureDifference> difference; // to the reference
    std::string differenceProblem;               // why there is none, as text
    // The kinds of failures of the run, whether or not they are selected by --fail-on.
    std::vector<std::string> faults;
    bool passes = false;
};
