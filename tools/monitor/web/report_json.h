// A System Report for the page.
#pragma once

#include <string>

#include "capability/system_report.h"

// One object: openGL, sections (name, isSupported), features (name, isAvailable, requires: texts of alternatives, of
// which one must be satisfied, holdsBack: the names of sections and extensions that require it).
[[nodiscard]] std::string jsonOf(const capability::SystemReport &report);
