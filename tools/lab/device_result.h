// What a run on one device came to.
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
    // From the journal. A program that never got a context has none of the first four.
    std::string esVersion, renderer, host;
    std::string config; // its id and sizes in words
    bool hasContext = false;
    uint64_t frames = 0;
    double framesPerSecond = 0;
    std::vector<LabRefusal> refusals;
    std::vector<LabFinding> lacking;
    std::vector<LabGlError> glErrors;
    // Of the run.
    double seconds = 0;
    std::string end; // in words
    bool endedWell = false;
    std::string logTail;
    std::optional<Picture> picture;              // of the last frame
    std::optional<PictureDifference> difference; // to the reference
    std::string differenceProblem;               // why there is none, in words
    // The kinds of failing that the run has, whether or not they are asked for.
    std::vector<std::string> faults;
    bool passes = false;
};
