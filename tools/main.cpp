#include <algorithm>
#include <iostream>

#include "foundation/product.h"
#include "tools/command/failure.h"
#include "tools/verbs.h"

namespace {

constexpr int usageStatus = 2;

// Takes the words behind "run ... --" off the command line, exactly as they are: the parser of our own words would
// look for verbs and lists among them.
std::vector<std::string> takeProgram(std::vector<std::string> &words) {
    if (words.empty() || words[0] != "run") return {};
    const auto mark = std::find(words.begin(), words.end(), "--");
    if (mark == words.end()) return {};
    std::vector<std::string> program(mark + 1, words.end());
    words.erase(mark, words.end());
    return program;
}

} // namespace

int main(int argc, char **argv) {
    CLI::App app("Looks at and steers Zelvane and the applications that run on it", "zelvane");
    app.set_version_flag("--version", std::string(productName) + " " + productVersion);
    app.footer("Exit status: 0 done, 1 the verb failed and said why, 2 the command line is wrong.");
    app.require_subcommand(1);
    addMonitorCommand(app);
    addProfilesCommand(app);
    addUseCommand(app);
    addReportCommand(app);
    std::vector<std::string> words(argv + std::min(argc, 1), argv + argc);
    const std::vector<std::string> program = takeProgram(words);
    addRunCommand(app, program);
    addStrictCommand(app);
    try {
        std::reverse(words.begin(), words.end()); // the parser takes them from the end
        app.parse(words);
    } catch (const Failure &failure) {
        return failure.status;
    } catch (const CLI::ParseError &error) {
        return app.exit(error) == 0 ? 0 : usageStatus;
    } catch (const std::exception &error) {
        std::cerr << "zelvane: " << error.what() << '\n';
        return 1;
    }
}
