// A record as one JSON object, without the end of its line.
#pragma once

#include <string>

#include "tools/monitor/application.h"
#include "ui/message_builders.h"

[[nodiscard]] std::string jsonRecord(const MonitoredApplication &application, const ui::messages::Message &message);
// The one object that is no record: the connection has ended.
[[nodiscard]] std::string jsonEnd(const MonitoredApplication &application);
