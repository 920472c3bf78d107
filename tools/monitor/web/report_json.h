// A System Report for the page.
#pragma once

#include <string>

#include "capability/system_report.h"

// One object: openGL, sections (name, isSupported), features (name, isAvailable, requires: texts of which one must
// hold, holdsBack: names of what requires it).
[[nodiscard]] std::string jsonOf(const capability::SystemReport &report);
