#include <iostream>

#include "tools/command/preferences.h"
#include "tools/command/verbs.h"

void addStrictCommand(CLI::App &app) {
    auto *command = app.add_subcommand("strict", "Refuse contexts that the host cannot fully carry, or stop that");
    auto mode = std::make_shared<std::string>();
    command->add_option("mode", *mode, "on or off; without it, tells which it is")->check(CLI::IsMember({"on", "off"}));
    command->footer("Exit status: 0 done, 1 the preferences file cannot be read or written, 2 any other mode.");
    command->callback([mode] {
        ToolPreferences preferences;
        if (!mode->empty()) preferences.setStrict(*mode == "on");
        std::cout << "strict context mode is " << (preferences.isStrict() ? "on" : "off") << '\n';
    });
}
