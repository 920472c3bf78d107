#include "tools/command/failure.h"

#include <iostream>

void failCommand(const std::string &message) {
    std::cerr << "zelvane: " << message << '\n';
    throw Failure{1};
}
