#include <algorithm>
#include <iostream>

#include "foundation/product.h"
#include "tools/command/failure.h"
#include "tools/command/standard_streams.h"
#include "tools/command/verbs.h"
#include "tools/command_line.h"

namespace {

constexpr int usageStatus = 2;

int runVerb(std::vector<std::string> words) {
    CLI::App app("Looks at and steers Zelvane and the applications that run on it", "zelvane");
    app.set_version_flag("--version", std::string(productName) + " " + productVersion);
    app.footer("Exit status: 0 done, 1 the verb failed and said why, 2 the command line is wrong,\n"
               "3 the output cannot be written.");
    app.require_subcommand(1);
    app.get_formatter()->label("SUBCOMMAND", "VERB");
    std::vector<std::string> program;
    const CLI::App &run = addRunCommand(app, program);
    addProfilesCommand(app);
    addUseCommand(app);
    addStrictCommand(app);
    addReportCommand(app);
    addMonitorCommand(app);
    program = takeProgram(words, run);
    try {
        std::reverse(words.begin(), words.end()); // the parser takes them from the end
        app.parse(words);
    } catch (const Failure &failure) {
        return failure.status;
    } catch (const CLI::ParseError &error) {
        if (error.get_exit_code() == 0) return app.exit(error);
        explainMistake(app, error);
        return usageStatus;
    } catch (const std::exception &error) {
        std::cerr << "zelvane: " << error.what() << '\n';
        return 1;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv) {
    occupyStandardStreams();
    return finishOutput(runVerb({argv + std::min(argc, 1), argv + argc}));
}
