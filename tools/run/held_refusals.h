// Failed calls that the library does not print until the program has ended: for calls that programs retry, none is
// printed if one succeeded in the end.
#pragma once

#include <string>

class HeldRefusals {
public:
    // Passes the path of a list in the directory to started programs. Continues without a list if it cannot be created.
    explicit HeldRefusals(const std::string &directory);

    // Prints the lines without a later success of that name on standard error, once the program has ended.
    void print() const;

private:
    std::string m_path;
};
