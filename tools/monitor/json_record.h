// A record as one JSON object, without a line feed.
#pragma once

#include <string>

#include "tools/monitor/application.h"
#include "ui/message_builders.h"

[[nodiscard]] std::string jsonRecord(const MonitoredApplication &application, const ui::messages::Message &message);
// The one object that is not a record: the connection has ended.
[[nodiscard]] std::string jsonEnd(const MonitoredApplication &application);
