// What the library holds back of refused calls until the program has ended: of calls that programs try in turn, nothing
// is said where one was taken at last.
#pragma once

#include <string>

class HeldRefusals {
public:
    // Points what this process starts to a list in the directory. A list that cannot be made is done without.
    explicit HeldRefusals(const std::string &directory);

    // Writes what no later call of that name made good to standard error, a line each, once the program has ended.
    void print() const;

private:
    std::string m_path;
};
