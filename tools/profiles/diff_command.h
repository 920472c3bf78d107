#pragma once

#include "tools/command/verb.h"

// zelvane profiles diff, below the verb profiles.
void addProfilesDiffCommand(const Verb &profiles);
