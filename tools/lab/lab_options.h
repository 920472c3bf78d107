// The user's options of the lab.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <vector>

struct LabOptions {
    std::vector<std::string> devices; // in the order of the table
    std::string reference;            // one of them, to which the others' pictures are compared
    uint64_t frames = 0;              // 0: the limit is a number of seconds
    double seconds = 0;
    std::string out;     // a directory
    unsigned jobs = 1;   // devices at a time
    bool isHere = false; // on the present display
    std::set<std::string> failOn;
    std::vector<std::string> program;
};
