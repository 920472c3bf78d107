// Refused calls that the library holds back until the program has ended: for calls that programs retry, no refusal is
// printed if one succeeded in the end.
#pragma once

#include <string>

class HeldRefusals {
public:
    // Points started programs to a list in the directory. Continues without a list if it cannot be created.
    explicit HeldRefusals(const std::string &directory);

    // Prints the lines without a later success of that name on standard error, once the program has ended.
    void print() const;

private:
    std::string m_path;
};
