// Records the monitor's events for the pages. Used on the monitor's thread.
#pragma once

#include <map>

#include "tools/monitor/output.h"
#include "tools/monitor/received_report.h"
#include "tools/monitor/web/history.h"

class WebOutput final : public MonitorOutput {
public:
    // The history is owned by the caller.
    explicit WebOutput(History &history) : m_history(history) {}

    void listening(const std::string &, bool) override {}
    // Applications are recorded from their hello on.
    void record(const MonitoredApplication &application, const ui::messages::Message &message) override;
    void ended(const MonitoredApplication &application) override;
    void notice(const std::string &text) override { m_history.addNotice(text); }
    void sentAway(const std::string &text) override { m_history.addRefusal(0, text, false); }
    void commanded(const MonitoredApplication &application, const ui::messages::Message &command) override;

private:
    struct Known {
        uint64_t number; // in the history
        ReceivedReport report;
    };

    void greet(const MonitoredApplication &application);
    void takeLogLine(const Known &known, const ui::messages::Message &message, const std::string &line);

    History &m_history;
    std::map<const MonitoredApplication *, Known> m_known; // the connected ones
};
