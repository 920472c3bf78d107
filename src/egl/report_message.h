// A fact of the system report in the form in which a GUI gets it.
#pragma once

#include "capability/report_record.h"
#include "ui/message_builders.h"

namespace egl {

[[nodiscard]] ui::messages::Message reportMessage(const capability::ReportRecord &record);

} // namespace egl
