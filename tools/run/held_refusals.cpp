#include "tools/run/held_refusals.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <vector>

namespace {

struct Held {
    std::string caller; // process number and call
    std::string text;
};

} // namespace

HeldRefusals::HeldRefusals(const std::string &directory) : m_path(directory + "/refusals") {
    if (std::ofstream(m_path)) setenv("ZELVANE_REFUSALS", m_path.c_str(), 1);
}

// Lines are "PID CALL TEXT", without a text for a call that succeeded.
void HeldRefusals::print() const {
    std::vector<Held> held;
    std::ifstream list(m_path);
    for (std::string line; std::getline(list, line);) {
        std::istringstream words(line);
        std::string process, call, text;
        words >> process >> call >> std::ws;
        std::getline(words, text);
        const std::string caller = process + ' ' + call;
        if (text.empty()) {
            std::erase_if(held, [&](const Held &refusal) { return refusal.caller == caller; });
        } else if (std::ranges::find(held, text, &Held::text) == held.end()) {
            held.push_back({caller, text});
        }
    }
    for (const Held &refusal : held)
        std::cerr << "zelvane: " << refusal.text << '\n';
}
