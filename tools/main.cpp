#include <algorithm>
#include <iostream>

#include "foundation/product.h"
#include "tools/command/command_line.h"
#include "tools/command/failure.h"
#include "tools/command/standard_streams.h"
#include "tools/command/verbs.h"

namespace {

constexpr int usageStatus = 2;

int runVerb(std::vector<std::string> words) {
    const CommandLine commandLine(
        "zelvane", "Shows and controls Zelvane and the applications that use it",
        std::string(productName) + " " + productVersion,
        "Exit status: 0 success, 1 the verb failed and printed the reason, 2 invalid command line,\n"
        "3 output error.");
    std::vector<std::string> program;
    addRunCommand(commandLine.top(), program);
    addLabCommand(commandLine.top(), program);
    addExplainCommand(commandLine.top());
    addInfoCommand(commandLine.top());
    addProfilesCommand(commandLine.top());
    addUseCommand(commandLine.top());
    addStrictCommand(commandLine.top());
    addReportCommand(commandLine.top());
    addDoctorCommand(commandLine.top());
    addMonitorCommand(commandLine.top());
    for (const char *verb : {"run", "lab"})
        if (program.empty()) program = commandLine.takeProgram(words, verb);
    try {
        return commandLine.run(words) ? 0 : usageStatus;
    } catch (const Failure &failure) {
        return failure.status;
    } catch (const std::exception &error) {
        std::cerr << "zelvane: " << error.what() << '\n';
        return 1;
    }
}

} // namespace

int main(int argc, char **argv) {
    occupyStandardStreams();
    return finishOutput(runVerb({argv + std::min(argc, 1), argv + argc}));
}
