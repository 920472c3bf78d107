#include "tools/profiles/diff_command.h"

#include <iostream>
#include <memory>

#include "tools/command/failure.h"
#include "tools/profiles/profile_difference.h"

namespace {

struct Options {
    std::string a, b;
    bool asJson = false;
};

enum ExitStatus { different = 1, unreadable = 2 };

void compare(const Options &options) {
    std::optional<ProfileDifference> difference;
    try {
        difference = compareProfiles(readNamedProfile(options.a), readNamedProfile(options.b));
    } catch (const Failure &) {
        throw Failure{unreadable};
    }
    std::cout << (options.asJson ? differenceAsJson(*difference) : differenceAsText(*difference));
    if (!difference->isNone()) throw Failure{different};
}

} // namespace

void addProfilesDiffCommand(const Verb &profiles) {
    const Verb diff = profiles.verb("diff", "Compare two profiles: configs, extensions, limits",
                                    "A and B are names that \"zelvane profiles\" lists, \"Desktop\", or files.\n"
                                    "Configs are matched by their values first, then by their ids.\n"
                                    "Exit status: 0 no difference, 1 differences, 2 a profile cannot be read.");
    const auto options = std::make_shared<Options>();
    diff.word("a", options->a, "a name or a file").required();
    diff.word("b", options->b, "the other").required();
    diff.flag("--json", options->asJson, "print one JSON object");
    diff.action([options] { compare(*options); });
}
