// The monitor's output: text, or one JSON object per line.
#pragma once

#include <memory>
#include <string>

#include "tools/monitor/application.h"
#include "ui/message_builders.h"

class MonitorOutput {
public:
    virtual ~MonitorOutput() = default;
    virtual void listening(const std::string &path, bool takesCommands) = 0;
    virtual void record(const MonitoredApplication &application, const ui::messages::Message &message) = 0;
    virtual void ended(const MonitoredApplication &application) = 0;
    // The response to a command.
    virtual void notice(const std::string &text) = 0;
    // A connection was rejected; the text names the process.
    virtual void sentAway(const std::string &text) { notice(text); }
    // A command was sent to the application.
    virtual void commanded(const MonitoredApplication &, const ui::messages::Message &) {}
};

[[nodiscard]] std::unique_ptr<MonitorOutput> makeTextOutput();
[[nodiscard]] std::unique_ptr<MonitorOutput> makeJsonOutput();
