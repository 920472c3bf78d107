// The verbs of the zelvane command. A verb that fails has written a message to standard error and throws a Failure with
// its exit status.
#pragma once

#include <string>
#include <vector>

#include "tools/command/verb.h"

void addExplainCommand(const Verb &top);
// program: as that of run.
void addLabCommand(const Verb &top, const std::vector<std::string> &program);
void addMonitorCommand(const Verb &top);
void addProfilesCommand(const Verb &top);
void addReportCommand(const Verb &top);
// program: the program and its words, which are not among those of the verb.
void addRunCommand(const Verb &top, const std::vector<std::string> &program);
void addStrictCommand(const Verb &top);
void addUseCommand(const Verb &top);
