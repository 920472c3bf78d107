#include <iostream>
#include <memory>

#include "tools/command/preferences.h"
#include "tools/command/verbs.h"

void addStrictCommand(const Verb &top) {
    const Verb strict =
        top.verb("strict", "Reject contexts that the host does not fully support, or accept them",
                 "Exit status: 0 success, 1 the preferences file cannot be read or written, 2 any other mode.");
    auto mode = std::make_shared<std::string>();
    strict.word("mode", *mode, "on or off; default: print the mode").oneOf({"on", "off"});
    strict.action([mode] {
        ToolPreferences preferences;
        if (!mode->empty()) preferences.setStrict(*mode == "on");
        std::cout << "strict context mode is " << (preferences.isStrict() ? "on" : "off") << '\n';
    });
}
