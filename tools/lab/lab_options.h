// The user's options of the lab.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

struct LabOptions {
    std::vector<std::string> devices; // in the order of the table
    std::string reference;            // the device that the others' pictures are compared with
    uint64_t frames = 0;              // 0: the limit is in seconds
    double seconds = 0;
    std::string out;     // a directory
    unsigned jobs = 1;   // devices at a time
    bool isHere = false; // on the current display
    std::set<std::string> failOn;
    std::vector<std::string> program;
};
