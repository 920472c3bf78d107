// A fact of the system report as a record for a GUI.
#pragma once

#include "capability/report_record.h"
#include "ui/message_builders.h"

namespace egl {

[[nodiscard]] ui::messages::Message reportMessage(const capability::ReportRecord &record);

} // namespace egl
