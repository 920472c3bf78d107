// The verbs of the zelvane command. A verb that fails has printed a message on standard error and throws a Failure with
// its exit status.
#pragma once

#include <string>
#include <vector>

#include "tools/command/verb.h"

void addDoctorCommand(const Verb &top);
void addExplainCommand(const Verb &top);
void addInfoCommand(const Verb &top);
// program: see run.
void addLabCommand(const Verb &top, const std::vector<std::string> &program);
void addMonitorCommand(const Verb &top);
void addProfilesCommand(const Verb &top);
void addReportCommand(const Verb &top);
// program: the program and its arguments, which are separate from those of the verb.
void addRunCommand(const Verb &top, const std::vector<std::string> &program);
void addStrictCommand(const Verb &top);
void addUseCommand(const Verb &top);
