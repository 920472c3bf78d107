// The verbs of the zelvane command. Each adds its subcommand; a verb that fails has written a message to standard error
// and throws a Failure with its exit status.
#pragma once

#include <CLI/CLI.hpp>

#include <string>
#include <vector>

void addMonitorCommand(CLI::App &app);
void addProfilesCommand(CLI::App &app);
void addReportCommand(CLI::App &app);
// program: the program and its words, which the verb's own words do not hold. Gives the verb.
CLI::App &addRunCommand(CLI::App &app, const std::vector<std::string> &program);
void addUseCommand(CLI::App &app);
void addStrictCommand(CLI::App &app);
